// Move Out, the third of the three things that can be done to a Sim.
#ifndef LIFESTAGE_MOVE_OUT_H
#define LIFESTAGE_MOVE_OUT_H

#include <cstdint>

#include "world/sim.h"

// Moves an adult into a new family of the same name, with its share of the money, in memory only. Then refills the
// combo boxes. Returns 1; or -1 if the Sim is null or not an adult, if its family no longer lists it, if the family
// hasn't saved enough, which a message says, or if ten new families already wait for a save. Nothing has changed unless
// the result is 1.
std::int32_t moveOut(Sim* sim);

// Empties the three combo boxes and lists the neighborhoods again.
void refillNeighborhoodCombo();

#endif
