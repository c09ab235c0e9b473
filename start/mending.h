// What is offered at a start about files that saves have left over (start/left_overs.h). `simsDirectory` has a trailing
// backslash. With `askNothing` words go to standard output, and nothing is asked (ui/words.h).
#ifndef START_MENDING_H
#define START_MENDING_H

#include <cstdint>
#include <string>

// Offers to put back what a save that was cut off has left out of its place. With `askNothing` only what is missing is
// put back. A restore point is made before.
void mend(const std::string& simsDirectory, bool askNothing);

// Names, in one box, the files that do no harm and were written at `since` (in seconds since 1970, UTC) or later, and
// offers to delete those that are superseded; with `askNothing` none is deleted. With `areNamed` the player has just
// read their names, and there is no box without an offer.
void nameHarmless(const std::string& simsDirectory, std::int64_t since, bool areNamed, bool askNothing);

#endif
