// The clock, the last error, the process, and the web browser.
#ifndef PLATFORM_NATIVE_API_SYSTEM_H
#define PLATFORM_NATIVE_API_SYSTEM_H

#include "platform/native/api/types.h"

struct SYSTEMTIME {
    WORD wYear, wMonth, wDayOfWeek, wDay, wHour, wMinute, wSecond, wMilliseconds;
};

// The error codes of Windows that this layer sets.
constexpr DWORD NO_ERROR = 0;
constexpr DWORD ERROR_FILE_NOT_FOUND = 2;
constexpr DWORD ERROR_PATH_NOT_FOUND = 3;
constexpr DWORD ERROR_TOO_MANY_OPEN_FILES = 4;
constexpr DWORD ERROR_ACCESS_DENIED = 5;
constexpr DWORD ERROR_INVALID_HANDLE = 6;
constexpr DWORD ERROR_NOT_ENOUGH_MEMORY = 8;
constexpr DWORD ERROR_WRITE_PROTECT = 19;
constexpr DWORD ERROR_GEN_FAILURE = 31;
constexpr DWORD ERROR_SHARING_VIOLATION = 32;  // never set: no program excludes another from a file here
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

struct TIME_ZONE_INFORMATION;

// The user's local time at the time `utc`; to the second, and FALSE for no time of a calendar. Left out: other time
// zones (`zone` must be null).
BOOL SystemTimeToTzSpecificLocalTime(const TIME_ZONE_INFORMATION* zone, const SYSTEMTIME* utc, SYSTEMTIME* local);

// The calling thread's last error. An operation that fails sets it; one that succeeds leaves it unchanged, unless it
// says otherwise.
DWORD GetLastError();
void SetLastError(DWORD code);

// Opens the web page `file` in the user's browser, for the verb "open". Returns a value above 32 if a browser was
// started. Left out: other verbs, files, parameters, directories.
HINSTANCE ShellExecuteA(HWND owner, LPCSTR verb, LPCSTR file, LPCSTR parameters, LPCSTR directory, int showCommand);

// The program's entry, called by the layer's `main` once the screen is open or known to be missing. Its result is the
// process's exit code.
int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine, int showCommand);

// The process's arguments, as in Windows' runtime.
extern int __argc;     // NOLINT(bugprone-reserved-identifier): Windows' own name
extern char** __argv;  // NOLINT(bugprone-reserved-identifier)

// The module handle of the program itself; `moduleName` must be null.
HINSTANCE GetModuleHandleA(LPCSTR moduleName);

#endif
