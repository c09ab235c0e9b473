// All neighborhoods of the installation.
#ifndef WORLD_NEIGHBORHOODS_H
#define WORLD_NEIGHBORHOODS_H

#include <array>
#include <memory>

#include "world/neighborhood.h"

constexpr int highestNeighborhoodCount = 100;

// Slot k holds the neighborhood of directory number k + 1, or null. Whoever walks the table stops at the first null
// slot.
using NeighborhoodTable = std::array<std::unique_ptr<Neighborhood>, highestNeighborhoodCount>;
extern NeighborhoodTable& neighborhoods;

// The number of slots in front of the first null one.
int listedNeighborhoodCount();

// Reads "UserData", "UserData2" and so on to "UserData100" below `simsDirectory` (with its trailing backslash) into the
// table, up to the first that doesn't exist. One that can't be read leaves its slot null, with a box, and the walk goes
// on. Each is told in the status line first.
void loadNeighborhoods(const char* simsDirectory, const char* toolDirectory);

#endif
