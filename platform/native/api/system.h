// Clock, error code, working of the process, and the web browser.
#ifndef PLATFORM_NATIVE_API_SYSTEM_H
#define PLATFORM_NATIVE_API_SYSTEM_H

#include "platform/native/api/types.h"

struct SYSTEMTIME {
    WORD wYear, wMonth, wDayOfWeek, wDay, wHour, wMinute, wSecond, wMilliseconds;
};

// Windows' error codes, as far as the operations of this layer leave them.
constexpr DWORD NO_ERROR = 0;
constexpr DWORD ERROR_FILE_NOT_FOUND = 2;
constexpr DWORD ERROR_PATH_NOT_FOUND = 3;
constexpr DWORD ERROR_TOO_MANY_OPEN_FILES = 4;
constexpr DWORD ERROR_ACCESS_DENIED = 5;
constexpr DWORD ERROR_INVALID_HANDLE = 6;
constexpr DWORD ERROR_NOT_ENOUGH_MEMORY = 8;
constexpr DWORD ERROR_WRITE_PROTECT = 19;
constexpr DWORD ERROR_GEN_FAILURE = 31;
constexpr DWORD ERROR_NOT_SUPPORTED = 50;
constexpr DWORD ERROR_INVALID_PARAMETER = 87;
constexpr DWORD ERROR_DISK_FULL = 112;
constexpr DWORD ERROR_ALREADY_EXISTS = 183;
constexpr DWORD ERROR_FILENAME_EXCED_RANGE = 206;
constexpr DWORD ERROR_MORE_DATA = 234;
constexpr DWORD ERROR_INVALID_WINDOW_HANDLE = 1400;
constexpr DWORD ERROR_CANNOT_FIND_WND_CLASS = 1407;
constexpr DWORD ERROR_CLASS_ALREADY_EXISTS = 1410;
constexpr DWORD ERROR_RESOURCE_NAME_NOT_FOUND = 1814;

// The system clock, in UTC.
void GetSystemTime(SYSTEMTIME* time);

// The calling thread's last error. A failing operation sets it; a successful one leaves it, unless it says otherwise.
DWORD GetLastError();
void SetLastError(DWORD code);

// Opens the web page `file` for the verb "open" in the user's browser. Returns a value above 32 if something took it.
// Left out: other verbs, files, parameters, directories.
HINSTANCE ShellExecuteA(HWND owner, LPCSTR verb, LPCSTR file, LPCSTR parameters, LPCSTR directory, int showCommand);

// The program's own entry, called by the layer's `main` once the screen (or its absence) is known; what it returns is
// the process's exit code.
int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine, int showCommand);

// The arguments of the process, as Windows' runtime hands them out.
extern int __argc;     // NOLINT(bugprone-reserved-identifier): Windows' own name
extern char** __argv;  // NOLINT(bugprone-reserved-identifier)

// The module handle of the program itself; `moduleName` must be null.
HINSTANCE GetModuleHandleA(LPCSTR moduleName);

#endif
