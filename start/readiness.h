// Whether the editor can save what a player does to this game, and what the player should know before.
#ifndef START_READINESS_H
#define START_READINESS_H

#include <string>
#include <vector>

#include "start/left_overs.h"

// Each line is one or more sentences for the player, in Windows-1252, without a line break.
struct Readiness {
    std::vector<std::string> obstacles = {};  // each prevents a save, or makes what it reads or writes unsafe
    std::vector<std::string> warnings = {};   // what can't be read, is half saved, or what a save would drop
    std::vector<LeftOver> leftOvers = {};     // of saves that were cut off

    // Whether nothing is known that prevents a save, and no file is missing or broken beside what is left over.
    bool isReady() const;

    // All of it, a line each, with an empty line in between; empty if there is nothing to say.
    std::string text() const;
};

// Looks at all neighborhoods below `simsDirectory` (with a trailing backslash), as far as the editor lists them. In
// each directory that a save writes to, a file is made and deleted. Nothing else is changed, and no box opens. For an
// editor that reads the records of later editions, these need no warning.
Readiness checkReadiness(const std::string& simsDirectory, bool readsLaterEditions = false);

#endif
