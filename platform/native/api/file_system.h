// Directories and file names. Each path is mapped as in platform/native/files/paths.h. Opening and status:
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

// Finds the one file or directory `fileName`. INVALID_HANDLE_VALUE with ERROR_FILE_NOT_FOUND or ERROR_PATH_NOT_FOUND if
// there is none. Left out: wildcards, and with them further matches.
HANDLE FindFirstFileA(LPCSTR fileName, WIN32_FIND_DATAA* found);
BOOL FindClose(HANDLE search);

// Creates one directory. Fails with ERROR_ALREADY_EXISTS if the name is taken, with ERROR_PATH_NOT_FOUND if its parent
// is missing.
BOOL CreateDirectoryA(LPCSTR path, SECURITY_ATTRIBUTES* attributes);

// The process's working directory. The getter writes a native path with its terminator and returns its length without
// it. If `size` bytes are too few, it writes nothing and returns the size needed, terminator included. The path is in
// Windows-1252, to be shown, if it leads back to the directory so; else its bytes are the file system's own.
BOOL SetCurrentDirectoryA(LPCSTR path);
DWORD GetCurrentDirectoryA(DWORD size, LPSTR path);

// Deletes a file. Fails with ERROR_ACCESS_DENIED for a directory and for a file with no write permission at all.
BOOL DeleteFileA(LPCSTR path);

#endif
