// Checks what a save has left of a neighborhood against the copy from before, and describes what is new.
#ifndef START_EVENING_CHECK_H
#define START_EVENING_CHECK_H

#include <string>
#include <vector>

#include "start/evening_changes.h"
#include "start/neighborhood_version.h"

struct EveningCheck {
    std::vector<std::string> news = {};    // "Clover Thistlewood is a teenager now."
    std::vector<std::string> losses = {};  // what is lost or broken, a sentence each
    std::size_t checkedFiles = 0;          // that are new and whole
};

// `changes` are between the two versions.
EveningCheck checkEvening(const NeighborhoodVersion& before, const NeighborhoodVersion& now,
                          const EveningChanges& changes);

#endif
