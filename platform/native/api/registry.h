// The registry of a Wine prefix, read only: `$WINEPREFIX/system.reg`, else `~/.wine/system.reg`. Nothing else of a
// registry exists here, so only `HKEY_LOCAL_MACHINE` can be opened.
#ifndef PLATFORM_NATIVE_API_REGISTRY_H
#define PLATFORM_NATIVE_API_REGISTRY_H

#include "platform/native/api/types.h"

// NOLINTNEXTLINE(performance-no-int-to-ptr): Windows' own value
inline const HKEY HKEY_LOCAL_MACHINE = reinterpret_cast<HKEY>(static_cast<ULONG_PTR>(0x80000002));
constexpr REGSAM KEY_ALL_ACCESS = 0xF003F;
constexpr DWORD REG_SZ = 1;
constexpr DWORD REG_EXPAND_SZ = 2;
constexpr LSTATUS ERROR_SUCCESS = 0;

// Opens the key `subKey` (backslashes between its parts, compared without regard to case). A 32-bit game installed into
// a 64-bit prefix has its keys below "Software\\Wow6432Node", so "Software\\x" also opens that section, and its values
// come first. Returns ERROR_SUCCESS, or ERROR_FILE_NOT_FOUND if there is no prefix or no such key; `*result` is set on
// success only. All access asked for is granted; nothing here can write. The file is read here, once; what changes in
// it later shows with the next opening.
LSTATUS RegOpenKeyExA(HKEY key, LPCSTR subKey, DWORD options, REGSAM access, HKEY* result);

// Reads the text value `valueName` (name compared without regard to case) as Windows-1252 with its terminator. `*size`
// is the size of `data` in bytes and becomes the size of the value, terminator included. Returns ERROR_SUCCESS,
// ERROR_MORE_DATA if it doesn't fit (`data` is then untouched), ERROR_FILE_NOT_FOUND for a value that isn't there or
// isn't text (REG_SZ or REG_EXPAND_SZ, whose variables stay as they are). `type` and `data` may be null.
LSTATUS RegQueryValueExA(HKEY key, LPCSTR valueName, LPDWORD reserved, LPDWORD type, LPBYTE data, LPDWORD size);

LSTATUS RegCloseKey(HKEY key);

#endif
