// Other programs that keep this one from a game: the game itself, windows that the editor would take for it, and
// another Tidewright.
#ifndef WORLD_RUNNING_GAME_H
#define WORLD_RUNNING_GAME_H

#include "platform/files.h"
#include "world/paths.h"

// Refuses to go on while the game runs, or a window of its name is open: the editor goes by the title alone. Returns 0,
// or exitCode::gameRunning (world/game_check.h) after words that say which program's window it is and what to do:
// in a box, or with `onConsole` on standard output.
int refuseBesideGame(bool onConsole);

// Whether the editor's window is open, on whatever game.
bool isEditorOpen();

// The game's directory as a DirectoryLock wants it, from one with a trailing backslash.
DirectoryText lockedDirectory(const DirectoryText& simsDirectory);

// Refuses to go on if another Tidewright has the lock of the game's directory. Returns 0, also where the directory
// can't be locked, or exitCode::gameRunning after words as above. The caller keeps the lock while it uses the game.
int refuseSecondStart(const DirectoryLock& gameLock, bool onConsole);

#endif
