// What happened between two states of the game's neighborhoods, in words for the player.
#ifndef RESTORE_HAPPENINGS_H
#define RESTORE_HAPPENINGS_H

#include <string>
#include <vector>

#include "restore/going_back.h"
#include "restore/restore_points.h"

// The paths of the files in which two points differ.
std::vector<std::string> differingFiles(const RestorePoint& one, const RestorePoint& other);

// Those of the paths that a save never writes: the game itself has.
std::vector<std::string> filesOfPlaying(const std::vector<std::string>& paths);

// The neighborhoods that have filesOfPlaying: the game was played, not only the editor used. Their numbers, in order.
std::vector<int> playedNeighborhoods(const std::vector<std::string>& paths);

// "Bramble Thistlewood became an adult, moved out", by names out of the files; "Neighborhood 1 was played" where no
// Sim's stage or family changed, and "nothing changed" if no file did. The directories are those of two states, with a
// backslash at the end; `paths` are the files that differ.
std::string happeningsBetween(const std::string& before, const std::string& after,
                              const std::vector<std::string>& paths);

struct NeighborhoodCounts {
    std::int32_t families = 0;
    std::int32_t sims = 0;
};

// Of one neighborhood or of all together.
NeighborhoodCounts countsIn(const std::string& directory, int neighborhood);

#endif
