// Move Out: the third of the three things that can be done to a Sim.
#ifndef LIFESTAGE_MOVE_OUT_H
#define LIFESTAGE_MOVE_OUT_H

#include <cstdint>

#include "world/sim.h"

// Moves an adult out into a new family of the same name, with its share of the money, in memory only. Empties the
// family and Sim combo boxes and lists the neighborhoods anew. 1; -1 if the Sim (null: none) isn't an adult or its
// family doesn't list it any more; with a message, if the family hasn't saved enough; then, if ten new families wait
// for a save already. Without a 1 nothing changed.
std::int32_t moveOut(Sim* sim);

// Empties the three combo boxes and lists the neighborhoods.
void refillNeighborhoodCombo();

#endif
