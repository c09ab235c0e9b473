// Teen to Adult, the second of the three things that can be done to a Sim.
#ifndef LIFESTAGE_TEEN_TO_ADULT_H
#define LIFESTAGE_TEEN_TO_ADULT_H

#include <cstdint>

#include "world/sim.h"

// Makes an adult out of a teen, in memory only: with a new body, whose type depends on the body skill and a draw, and
// an adult's head. Then enables the buttons for an adult. Returns 1; 0 if the user cancelled at the question about the
// head; or -1 if the Sim is null or not a teen, or if its body strings can't be read. Nothing has changed unless the
// result is 1.
std::int32_t teenToAdult(Sim* sim);

// The body type of a new adult: fit if the draw's level, 0 to 10, isn't above the skill's, which rises by 1 with every
// 100 of `bodySkill`; else fat for an odd draw and skinny for an even one.
std::int16_t adultBodyType(int draw, std::int16_t bodySkill);

#endif
