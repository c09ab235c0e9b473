// Waits for other programs, such as virus scanners, that have a file open for a moment.
#ifndef PLATFORM_WINDOWS_FILE_HELD_H
#define PLATFORM_WINDOWS_FILE_HELD_H

#include <windows.h>

// Whether an operation on `path` failed, by the last error, because another program has the file open: in a way that
// excludes the operation, or since before the file was deleted, when Windows refuses the name to everyone. Leaves the
// last error unchanged.
bool isHeldByAnother(const char* path);

// Repeats `attempt` while it fails for that reason, for two seconds at most. Returns the result of the last attempt. If
// the file is still held, the last error is ERROR_SHARING_VIOLATION.
template <typename Attempt>
auto whileHeld(const char* path, Attempt attempt) {
    constexpr DWORD twoSeconds = 2000;
    const DWORD begin = GetTickCount();
    auto result = attempt();
    while (!result && isHeldByAnother(path)) {
        if (GetTickCount() - begin >= twoSeconds) {
            SetLastError(ERROR_SHARING_VIOLATION);
            return result;
        }
        Sleep(20);
        result = attempt();
    }
    // It may have come free between attempt and question.
    return result || GetLastError() != ERROR_ACCESS_DENIED ? result : attempt();
}

#endif
