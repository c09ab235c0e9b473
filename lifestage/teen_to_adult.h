// Teen to Adult: the second of the three things that can be done to a Sim.
#ifndef LIFESTAGE_TEEN_TO_ADULT_H
#define LIFESTAGE_TEEN_TO_ADULT_H

#include <cstdint>

#include "world/sim.h"

// Makes an adult of a teen, in memory only: a new body, fit by chance and by the Sim's body skill, and an adult's head.
// Sets the buttons to what the adult allows. 1; 0 if the user cancelled at the question about the head, -1 if the Sim
// (null: none) isn't a teen or its body strings can't be read, both with nothing changed.
std::int32_t teenToAdult(Sim* sim);

// The body type of a new adult for one draw: fit when the draw's level, 0 to 10, isn't above the skill's (100 of
// `bodySkill` make a level), else fat for an odd draw and skinny for an even one.
std::int16_t adultBodyType(int draw, std::int16_t bodySkill);

#endif
