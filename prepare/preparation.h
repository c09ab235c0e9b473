// Makes a player's game and the tool directory, which is the working directory, ready for the program.
#ifndef PREPARE_PREPARATION_H
#define PREPARE_PREPARATION_H

#include <string>

#include "gamefiles/templates.h"

struct Preparation {
    bool ready = true;   // nothing is missing
    std::string report;  // a line for each thing that was done or kept, or that is missing and why
};

// In this order, each unless it is there already: the skin in the game's directory, "Template.iff" out of one of the
// player's character files, "famtemplate", and "skinsets.cfg" as a copy of the file `originalSkinSets`. The last one
// comes only if nothing is missing, because the program starts wherever it is. `simsDirectory` has a trailing
// backslash.
//
// A Template.iff of the player's is kept, and so is a file that a save can't use; the report then says what to do. With
// `newTemplate`, and for a Template.iff of an earlier version of this program, a new one is made, and the old one is
// kept under a dated name. Nothing else of the player's is changed.
//
// With Editions::later the two templates of later editions of the game are brought as well, in the same way.
Preparation prepareGame(const char* simsDirectory, const std::string& originalSkinSets, bool newTemplate,
                        Editions editions = Editions::base);

// What prepareGame would make now, with the directories, a line for each file; empty if nothing. Nothing is changed.
std::string plannedFiles(const std::string& simsDirectory, const std::string& toolDirectory, bool newTemplate,
                         Editions editions = Editions::base);

#endif
