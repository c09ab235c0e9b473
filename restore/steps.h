// What differs between the game's files and those of a restore point, as the steps from the ones to the others.
#ifndef RESTORE_STEPS_H
#define RESTORE_STEPS_H

#include <optional>
#include <string>
#include <vector>

#include "restore/game_comparison.h"
#include "restore/point_files.h"
#include "restore/restore_points.h"

// What must happen to one live file to make it the point's.
struct Step {
    enum class Kind { replace, stamp, come, go };

    Kind kind;
    std::string path;
    const PointFile* file = nullptr;  // the point's; null for one that goes
    std::optional<FileStamp> found;   // of the live file; no value for one that comes
};
using Steps = std::vector<Step>;

// Compares the game's files `found` themselves. The steps point into `target`.
Steps stepsFromLive(GameComparison& comparison, const std::vector<LiveFile>& found, const RestorePoint& target,
                    int neighborhood);

// Compares the point of the present, which has the same bytes as the game's files `found`, with the target. What is
// known of the game's files isn't read again.
Steps stepsFromPresent(const FileTree& points, const GameComparison& comparison, const std::vector<LiveFile>& found,
                       const RestorePoint& present, const RestorePoint& target, int neighborhood);

// A sentence if a file of the point can't come because something of another kind has its name, or that of a directory
// on the way to it; else empty. What a link leads to isn't the neighborhood's.
std::string swappedKind(const FileTree& live, const NeighborhoodFiles& found, const Steps& steps);

// Whether some file, in any spelling, differs from both states to which these are the steps.
bool haveCommonPath(const Steps& one, const Steps& other);

#endif
