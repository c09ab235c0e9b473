// What must be true before the program starts.
#ifndef SHELL_START_CHECKS_H
#define SHELL_START_CHECKS_H

#include "world/sims_directory.h"

// Exit codes of a start that was refused.
namespace exitCode {
constexpr int gameNotFound = -1;
constexpr int gameRunning = -2;
constexpr int badInstallation = -3;
constexpr int missingSkinSets = -4;
}  // namespace exitCode

// Finds the game's directory (with a trailing backslash behind it), and refuses to go on while the game runs or while a
// file of the program's own is missing. `toolDirectory` is where these lie, the working directory; it is empty when its
// path is too long for the program. Returns 0, or the exit code after the box that says why.
int checkStart(DirectoryText& simsDirectory, const char* toolDirectory);

#endif
