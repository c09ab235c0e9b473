// What a teen wears.
#ifndef LIFESTAGE_TEEN_BODY_H
#define LIFESTAGE_TEEN_BODY_H

#include <cstdint>

#include "world/body_strings.h"

// A teen's body: the skinny adult's, with a teen's meshes and skins and an outfit that a draw picks. The head is the
// template's. The last pair of slots is set only if the game's fourth expansion is installed.
BodyStrings teenBody(std::int16_t gender, std::int16_t skinTone, std::int16_t version);

#endif
