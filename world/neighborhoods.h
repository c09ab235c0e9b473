// All neighborhoods of the installation.
#ifndef WORLD_NEIGHBORHOODS_H
#define WORLD_NEIGHBORHOODS_H

#include <array>
#include <memory>

#include "world/neighborhood.h"
#include "world/sims_directory.h"

// Slot k holds the neighborhood of directory number k + 1, or null. Every walk over the table stops at the first null.
using NeighborhoodTable = std::array<std::unique_ptr<Neighborhood>, highestNeighborhoodCount>;
extern NeighborhoodTable& neighborhoods;

// How many slots come before the first null.
int listedNeighborhoodCount();

// Reads "UserData", "UserData2" and so on to "UserData100" in `simsDirectory` (with a trailing backslash) into the
// table, and stops at the first that doesn't exist. The status line names each one before it is read. A neighborhood
// that can't be read leaves its slot null, after a message box, and the next one is read all the same.
void loadNeighborhoods(const char* simsDirectory, const char* toolDirectory, RecordFormats formats = baseFormats);

#endif
