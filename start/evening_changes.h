// Which files of a neighborhood have changed since the copy was made, and who has written them.
#ifndef START_EVENING_CHANGES_H
#define START_EVENING_CHANGES_H

#include <cstdint>
#include <string>
#include <vector>

#include "start/neighborhood_files.h"

struct EveningChanges {
    bool isSaved = false;                      // the neighborhood file is new, and the editor wrote it
    std::vector<std::string> characters = {};  // the files of Sims that are new and that the editor wrote
    bool isReplaced = false;                   // the neighborhood file is new, and another program wrote it
    bool isPlayed = false;                     // another program, as a rule the game, has written one of these files

    bool isByEditor() const { return isSaved || !characters.empty(); }
};

// Compares the neighborhood file, the files of Sims and those of houses. The editor's save keeps the old version of a
// file as a backup, or beside the file. What has none that is as new as `begin`, in seconds since 1970, comes from
// another program, unless a Sim's record shows another age; so does any change of a house. A file that a save was cut
// off without is none of these: it is missing (start/left_overs.h).
EveningChanges changesOf(const NeighborhoodPlace& before, const NeighborhoodPlace& now, std::int64_t begin);

#endif
