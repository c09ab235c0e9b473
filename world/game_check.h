// The checks that the editor makes before it touches the game, and the exit codes of a start.
#ifndef WORLD_GAME_CHECK_H
#define WORLD_GAME_CHECK_H

#include "world/sims_directory.h"

// Exit codes of a start that was refused.
namespace exitCode {
constexpr int gameNotFound = -1;
constexpr int gameRunning = -2;
}  // namespace exitCode

// What the game's window may be called.
constexpr const char* gameTitles[] = {"The Sims Hot Date", "The Sims House Party", "The Sims Livin' Large", "The Sims"};

// Shows the box, posts the code as the process's, and returns it.
int refuseStart(const char* text, const char* title, int code);

// Finds the game's directory, with a trailing backslash, and refuses to go on while the game runs. Returns 0, or the
// exit code after a box that says why.
int checkGame(DirectoryText& simsDirectory);

#endif
