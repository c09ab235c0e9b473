// What the Sims of the samples wear: the 50 body-string slots of an adult, a teen, a child and a pet.
#ifndef GAMEFILES_BODIES_H
#define GAMEFILES_BODIES_H

#include <string>

#include "gamefiles/body_string_text.h"

enum class BodySex { male, female };

// `tone` is the game's word for the skin tone: "lgt", "med" or "drk". All 50 slots are set but the spare ones; how many
// of them reach a file is up to its ending.
BodySlots adultSlots(BodySex sex = BodySex::female, const std::string& tone = "lgt");

// A teen's body is known by the letters "TNR" in its body skin. The game has no teens of its own; only this program
// dresses Sims so.
BodySlots teenSlots(BodySex sex = BodySex::female, const std::string& tone = "lgt");

// A child has no outfits for special occasions, so slots 36, 37 and 42 to 49 are empty.
BodySlots childSlots(BodySex sex = BodySex::female, const std::string& tone = "lgt");

// Animals wear the game's child hands and no outfits.
BodySlots petSlots();

// Puts another head on.
void setHead(BodySlots& slots, const std::string& mesh, const std::string& skin);

#endif
