// Directories and file names. Every path goes through one mapping: "C:\x\y" through the Wine prefix's `dosdevices/c:`;
// a native absolute path and a relative one stay; backslashes become slashes; each component is looked up first as
// written, then without regard to ASCII case; what doesn't exist is taken as written. Opening and status:
// platform/files.h.
#ifndef PLATFORM_NATIVE_API_FILE_SYSTEM_H
#define PLATFORM_NATIVE_API_FILE_SYSTEM_H

#include "platform/native/api/types.h"

constexpr DWORD FILE_ATTRIBUTE_READONLY = 0x1;
constexpr DWORD FILE_ATTRIBUTE_DIRECTORY = 0x10;
constexpr DWORD FILE_ATTRIBUTE_NORMAL = 0x80;
// NOLINTNEXTLINE(performance-no-int-to-ptr): Windows' own value
inline const HANDLE INVALID_HANDLE_VALUE = reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(-1));

struct SECURITY_ATTRIBUTES;

struct WIN32_FIND_DATAA {
    DWORD dwFileAttributes;
    DWORD nFileSizeHigh;
    DWORD nFileSizeLow;
    char cFileName[MAX_PATH];  // the last component, as the directory spells it
};

// Looks for the one file or directory `fileName`. INVALID_HANDLE_VALUE with ERROR_FILE_NOT_FOUND or
// ERROR_PATH_NOT_FOUND if there is none. Left out: wildcards, and so the next match.
HANDLE FindFirstFileA(LPCSTR fileName, WIN32_FIND_DATAA* found);
BOOL FindClose(HANDLE search);

// Makes one directory. ERROR_ALREADY_EXISTS if the name is taken, ERROR_PATH_NOT_FOUND if its parent is missing.
BOOL CreateDirectoryA(LPCSTR path, SECURITY_ATTRIBUTES* attributes);

// The process's working directory. The getter writes a native path with its terminator and returns its length without
// it; if `size` bytes are too few it writes nothing and returns the size needed.
BOOL SetCurrentDirectoryA(LPCSTR path);
DWORD GetCurrentDirectoryA(DWORD size, LPSTR path);

// Deletes a file. A directory, or a file that nobody may write, is refused with ERROR_ACCESS_DENIED.
BOOL DeleteFileA(LPCSTR path);

#endif
