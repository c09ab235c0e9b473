// Where the game is installed.
#ifndef WORLD_SIMS_DIRECTORY_H
#define WORLD_SIMS_DIRECTORY_H

#include "world/paths.h"

// Reads from the registry where the installer has put the game, without a trailing backslash. 0, or -1 with `directory`
// untouched if there is no such entry.
int findSimsDirectory(DirectoryText& directory);

using NeighborhoodPath = FixedText<119>;

// The highest number of a neighborhood.
constexpr int highestNeighborhoodCount = 100;

// The directory of a neighborhood, "UserData", "UserData2" and so on. `simsDirectory` has a trailing backslash, and the
// first number is 1.
NeighborhoodPath neighborhoodDirectory(const char* simsDirectory, int number);

#endif
