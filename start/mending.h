// What is offered at a start about files that saves have left over (start/left_overs.h). `simsDirectory` has a trailing
// backslash. With `askNothing` words go to standard output, and nothing is asked (ui/words.h).
#ifndef START_MENDING_H
#define START_MENDING_H

#include <string>

// Offers to put back what a save that was cut off has left out of its place. With `askNothing` only what is missing is
// put back. A restore point is made before.
void mend(const std::string& simsDirectory, bool askNothing);

#endif
