// An evening with the editor, from the restore point before it to the words after it. With `askNothing` these go to
// standard output, and nothing is asked (ui/words.h).
#ifndef START_EVENING_STEPS_H
#define START_EVENING_STEPS_H

#include <cstdint>
#include <string>

#include "gamefiles/templates.h"
#include "platform/files.h"

// The last evening in this game, as far as a restore point tells of it.
struct LastEvening {
    std::int64_t begin = 0;  // in seconds since 1970, UTC; 0 if there was none
    bool wasCutOff = false;
    bool isSettled = true;  // false if going back was begun and failed, so that nothing else may begin
};

// Says what became of the last evening if that was cut off, and offers to go back to before it.
LastEvening settleLastEvening(const std::string& simsDirectory, bool askNothing);

// Makes a restore point, runs the editor for these editions, waits for its end, and says what it has saved. The
// editor shares `gameLock`, if that is held. Returns the editor's exit code, or 1 if it wasn't started.
int runEvening(const std::string& simsDirectory, Editions editions, const DirectoryLock& gameLock, bool askNothing);

#endif
