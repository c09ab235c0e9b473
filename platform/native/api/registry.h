// The registry of a Wine prefix, read only: `$WINEPREFIX/system.reg`, else `~/.wine/system.reg`. Only
// HKEY_LOCAL_MACHINE exists.
#ifndef PLATFORM_NATIVE_API_REGISTRY_H
#define PLATFORM_NATIVE_API_REGISTRY_H

#include "platform/native/api/types.h"

// NOLINTNEXTLINE(performance-no-int-to-ptr): Windows' own value
inline const HKEY HKEY_LOCAL_MACHINE = reinterpret_cast<HKEY>(static_cast<ULONG_PTR>(0x80000002));
constexpr REGSAM KEY_ALL_ACCESS = 0xF003F;
constexpr DWORD REG_SZ = 1;
constexpr DWORD REG_EXPAND_SZ = 2;
constexpr LSTATUS ERROR_SUCCESS = 0;

// Opens the key `subKey`, with backslashes between its parts, compared without regard to case. In a 64-bit prefix a
// 32-bit game has its keys below "Software\\Wow6432Node", so "Software\\x" opens that section as well, and its values
// come first. Returns ERROR_SUCCESS, or ERROR_FILE_NOT_FOUND if there is no prefix or no such key; `*result` is set on
// success only. Any access is granted, but nothing here can write. The file is read now; later changes show when a key
// is opened again.
LSTATUS RegOpenKeyExA(HKEY key, LPCSTR subKey, DWORD options, REGSAM access, HKEY* result);

// Reads the text value `valueName`, compared without regard to case, as Windows-1252 with its terminator. `*size` is
// the size of `data` in bytes and becomes the size of the value, terminator included. Returns ERROR_SUCCESS;
// ERROR_MORE_DATA with `data` unchanged if it doesn't fit; ERROR_FILE_NOT_FOUND if the value doesn't exist or is
// neither REG_SZ nor REG_EXPAND_SZ. Variables in the text are not expanded. `type` and `data` may be null.
LSTATUS RegQueryValueExA(HKEY key, LPCSTR valueName, LPDWORD reserved, LPDWORD type, LPBYTE data, LPDWORD size);

LSTATUS RegCloseKey(HKEY key);

#endif
