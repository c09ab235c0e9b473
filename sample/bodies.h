// What the Sims of the sample and of the tests wear: the body strings of an adult, a teen, a child and a pet.
#ifndef SAMPLE_BODIES_H
#define SAMPLE_BODIES_H

#include <cstddef>
#include <string>

#include "gamefiles/body_strings_chunk.h"

// The slots that the builders and tests set by name.
namespace sampleSlot {
constexpr std::size_t bodyMesh = 0;
constexpr std::size_t bodySkin = 1;
constexpr std::size_t headMesh = 2;
constexpr std::size_t headSkin = 3;
constexpr std::size_t firstAnchor = 4;
constexpr std::size_t gender = 13;
constexpr std::size_t ageText = 14;
constexpr std::size_t skinTone = 15;
constexpr std::size_t nBodyMesh = 16;
constexpr std::size_t uBodyMesh = 18;
constexpr std::size_t handLOMesh = 20;
constexpr std::size_t fBodyMesh = 36;
constexpr std::size_t fHandLOMesh = 38;
constexpr std::size_t fHandROMesh = 40;
constexpr std::size_t f100Mesh = 42;
constexpr std::size_t w100Mesh = 48;
constexpr std::size_t w100Skin = 49;
}  // namespace sampleSlot

enum class BodySex { male, female };

// `tone` is the game's word for the skin tone: "lgt", "med" or "drk". The slots of all 33 entries are set where the
// game sets them, also those that a text with an earlier ending leaves out.
BodySlots adultSlots(BodySex sex = BodySex::female, const std::string& tone = "lgt");

// A teen is recognized by "TNR" in its body skin. The game itself has no teens; only this program dresses Sims so.
BodySlots teenSlots(BodySex sex = BodySex::female, const std::string& tone = "lgt");

// A child has no formal wear and no outfits of the expansion packs: slots 36, 37 and 42 to 49 are empty.
BodySlots childSlots(BodySex sex = BodySex::female, const std::string& tone = "lgt");

// A pet has a child's hands and no outfits.
BodySlots petSlots();

void setHead(BodySlots& slots, const std::string& mesh, const std::string& skin);

#endif
