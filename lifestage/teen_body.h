// What a teen wears.
#ifndef LIFESTAGE_TEEN_BODY_H
#define LIFESTAGE_TEEN_BODY_H

#include <cstdint>

#include "world/body_strings.h"

// A teen's body: the skinny adult's with the teen's meshes and skins over it, and an outfit picked by one draw. The
// head is the template's default. The last pair of slots is set only where the game's fourth expansion is installed.
BodyStrings teenBody(std::int16_t gender, std::int16_t skinTone, std::int16_t version);

#endif
