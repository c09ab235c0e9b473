// What became of an evening: what the editor has saved, by names out of the files, and whether all of it is there.
#ifndef START_REPORT_H
#define START_REPORT_H

#include <string>

#include "start/evening.h"

struct EveningReport {
    bool hasSaved = false;   // the editor has saved something
    bool wasPlayed = false;  // the game has saved meanwhile: going back would undo that, too
    bool hasLoss = false;    // something is lost or broken, or a save was cut off: going back is worth a question
    std::string text = {};   // for the player, in Windows-1252; empty if there is nothing to say
};

// Compares the game's neighborhoods with the copy. Where nothing was saved, the text says so only if something prevents
// a save, or if another program has saved meanwhile. No box opens.
EveningReport reportOn(const Evening& evening);

#endif
