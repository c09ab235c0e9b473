// Where the game is installed.
#ifndef WORLD_SIMS_DIRECTORY_H
#define WORLD_SIMS_DIRECTORY_H

#include "world/paths.h"

// The game's directory as its installer wrote it into the registry, without a trailing backslash. 0, or -1 with
// `directory` untouched if it isn't there.
int findSimsDirectory(DirectoryText& directory);

#endif
