// The checks before the program starts.
#ifndef SHELL_START_CHECKS_H
#define SHELL_START_CHECKS_H

#include "world/sims_directory.h"

// Exit codes of a start that was refused, besides those of world/game_check.h.
namespace exitCode {
constexpr int badInstallation = -3;
constexpr int missingSkinSets = -4;
}  // namespace exitCode

// Finds the game's directory, with a trailing backslash, and refuses to start while the game runs or if one of the
// program's own files is missing. `toolDirectory` is the working directory, where these files are; it is empty if its
// path is too long. Returns 0, or the exit code after a box that says why.
int checkStart(DirectoryText& simsDirectory, const char* toolDirectory);

#endif
