// Makes a player's game and the tool directory, which is the working directory, ready for the program.
#ifndef PREPARE_PREPARATION_H
#define PREPARE_PREPARATION_H

#include <string>

struct Preparation {
    bool ready = true;   // nothing is missing
    std::string report;  // a line for each thing that was done or kept, or that is missing and why
};

// In this order, each unless it is there already: the skin in the game's directory, "Template.iff" out of one of the
// player's character files, "famtemplate", and "skinsets.cfg" as a copy of "skinsets-original.cfg". The last one comes
// only if nothing is missing, because the program starts wherever it is. `simsDirectory` has a trailing backslash.
//
// A Template.iff whose Sims would act is kept. With `newTemplate` it is kept under a dated name, and a new one is made.
// Nothing else of the player's is changed.
Preparation prepareGame(const char* simsDirectory, bool newTemplate);

#endif
