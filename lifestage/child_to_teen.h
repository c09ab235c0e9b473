// Child to Teen, the first of the three things that can be done to a Sim.
#ifndef LIFESTAGE_CHILD_TO_TEEN_H
#define LIFESTAGE_CHILD_TO_TEEN_H

#include <cstdint>

#include "world/sim.h"

// Makes a teen out of a child, in memory only: with a new body, a random outfit and a teen's head. Then enables the
// buttons for a teen. Returns 1; 0 if the user cancelled at the question about the head; or -1 if the Sim is null or
// not a child, if its body strings can't be read, or, after a message, if the game hasn't written them in the form of
// its later expansions yet. Nothing has changed unless the result is 1.
std::int32_t childToTeen(Sim* sim);

#endif
