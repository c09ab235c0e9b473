// Sims that a save was cut off behind: their files are new, and the neighborhood file still has their old records.
#ifndef START_HALF_SAVED_H
#define START_HALF_SAVED_H

#include <string>

#include "start/neighborhood_files.h"
#include "world/neighborhood.h"

// Says whose files these are and what to do, or nothing. Only a body that doesn't fit the record counts, where the old
// version of the file has one that does: the game, too, writes files of Sims after the neighborhood file, and gives
// them other clothes. Once the neighborhood file is written again, nothing is said any more. Compares only times of the
// game's disk, so the restore point of that evening isn't needed.
std::string halfSavedSims(const NeighborhoodPlace& place, Neighborhood& neighborhood);

#endif
