// Waits for other programs, such as virus scanners, that have a file open for a moment.
#ifndef PLATFORM_WINDOWS_FILE_HELD_H
#define PLATFORM_WINDOWS_FILE_HELD_H

#include <windows.h>

// Whether an operation on `path` failed, by the last error, because another program has the file open: exclusively, or
// since before it was deleted, in which case Windows refuses the name to everyone until it is closed. Leaves the last
// error unchanged.
bool isHeldByAnother(const char* path);

// Repeats `attempt` while it fails for that reason, for two seconds at most, so that the second step of replacing a
// file does not fail because a program reads it. Returns the result of the last attempt.
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
