// Waiting for other programs, such as virus scanners, that have a file open for a moment.
#ifndef PLATFORM_WINDOWS_FILE_HELD_H
#define PLATFORM_WINDOWS_FILE_HELD_H

#include <windows.h>

// Whether an operation on `path` failed, by the last error, because another program has the file. It may have it open
// for itself alone, or had it open when the file was deleted: until it closes it, Windows refuses everybody the name.
// Leaves the last error as it is.
bool isHeldByAnother(const char* path);

// Repeats `attempt` while it fails for that reason, for two seconds at most: the second step of replacing a file must
// not fail because a program looks at it. Returns what the last attempt returned.
template <typename Attempt>
auto whileHeld(const char* path, Attempt attempt) {
    constexpr int tries = 100;
    auto result = attempt();
    for (int tried = 1; !result && tried < tries && isHeldByAnother(path); ++tried) {
        Sleep(20);
        result = attempt();
    }
    // It may have come free between attempt and question.
    return result ? result : attempt();
}

#endif
