// Child to Teen: the first of the three things that can be done to a Sim.
#ifndef LIFESTAGE_CHILD_TO_TEEN_H
#define LIFESTAGE_CHILD_TO_TEEN_H

#include <cstdint>

#include "world/sim.h"

// Makes a teen of a child, in memory only: a new body, an outfit by chance, and a teen's head. Sets the buttons to what
// the teen allows. 1; 0 if the user cancelled at the question about the head; -1 if the Sim (null: none) isn't a child,
// if its body strings can't be read, or, with a message, if the game hasn't written them in the form of its later
// expansions yet. Without a 1 nothing changed.
std::int32_t childToTeen(Sim* sim);

#endif
