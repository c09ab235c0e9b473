// Which game a restore point is of.
#ifndef RESTORE_SAME_GAME_H
#define RESTORE_SAME_GAME_H

#include <string>

// The game's directory as a path that means the same wherever it is read: "C:" is another drive in each Wine prefix.
// With a backslash at its end.
std::string gameOf(const std::string& simsDirectory);

// Whether two of these are one and the same directory. Paths that differ in case alone may be two.
bool isSameGame(const std::string& one, const std::string& other);

#endif
