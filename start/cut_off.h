// What an evening left that began and didn't end, because the program was killed or the power went.
#ifndef START_CUT_OFF_H
#define START_CUT_OFF_H

#include <string>

#include "start/evening.h"

struct CutOffEvening {
    bool isAsBefore = true;       // no file differs from the copy: nothing needs to be said
    bool wasPlayedSince = false;  // the game has saved since: going back would undo that, too
    std::string text = {};        // "The last evening was cut off. Neighborhood 1 is as follows: ..."
};

// Live files that are missing or broken come into the text, too; left_overs.h mends them. No box opens.
CutOffEvening describeCutOff(const Evening& evening);

#endif
