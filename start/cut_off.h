// What an evening left that began and didn't end, because the program was killed or the power went.
#ifndef START_CUT_OFF_H
#define START_CUT_OFF_H

#include <string>

#include "start/evening.h"

struct CutOffEvening {
    bool isAsBefore = true;       // no save was begun since the copy was made: nothing needs to be said
    bool isWhole = true;          // all that was saved is complete, and nothing is lost
    bool wasPlayedSince = false;  // the game has saved since: going back would undo that, too
    std::string text = {};        // "The last evening was cut off. Neighborhood 1 is as follows: ..."
};

// Compares the game's neighborhoods with the copy; one in which no save was begun isn't mentioned, nor is what an
// earlier evening has left over. What left_overs.h can mend is mentioned, and offered there. No box opens.
CutOffEvening describeCutOff(const Evening& evening);

#endif
