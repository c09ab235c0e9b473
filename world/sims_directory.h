// Where the game is installed.
#ifndef WORLD_SIMS_DIRECTORY_H
#define WORLD_SIMS_DIRECTORY_H

#include "world/paths.h"

// Reads from the registry where the installer has put the game, without a trailing backslash. 0, or -1 with `directory`
// untouched if there is no such entry.
int findSimsDirectory(DirectoryText& directory);

#endif
