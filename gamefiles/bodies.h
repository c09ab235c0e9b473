// What the Sims of the sample and of the tests wear: the body strings of an adult, a teen, a child and a pet.
#ifndef GAMEFILES_BODIES_H
#define GAMEFILES_BODIES_H

#include <string>

#include "gamefiles/body_string_text.h"

enum class BodySex { male, female };

// `tone` is the game's word for the skin tone: "lgt", "med" or "drk". The slots of all 33 entries are set where the
// game sets them, also those that a text with an earlier ending leaves out.
BodySlots adultSlots(BodySex sex = BodySex::female, const std::string& tone = "lgt");

// A teen is recognised by "TNR" in its body skin. The game itself has no teens; only this program dresses Sims so.
BodySlots teenSlots(BodySex sex = BodySex::female, const std::string& tone = "lgt");

// A child has no formal wear and no outfits of the expansion packs: slots 36, 37 and 42 to 49 are empty.
BodySlots childSlots(BodySex sex = BodySex::female, const std::string& tone = "lgt");

// A pet has a child's hands and no outfits.
BodySlots petSlots();

void setHead(BodySlots& slots, const std::string& mesh, const std::string& skin);

#endif
