// The words that a Sim's facts make in the names of meshes and skins. The templates themselves are a constructor of
// BodyStrings.
#ifndef LIFESTAGE_STAGE_TEMPLATE_H
#define LIFESTAGE_STAGE_TEMPLATE_H

#include <cstdint>
#include <string_view>

// The word for a skin tone: 1 "lgt", 3 "med", all else "drk".
std::string_view toneWord(std::int16_t skinTone);

// The age that selects the grown body. Any other but 0, the child's, would do.
constexpr std::uint8_t grownBody = 27;

// Body types of the grown body. No operation asks for the teen's: a new teen is made out of the skinny body.
namespace bodyType {
constexpr std::int16_t teen = 0;
constexpr std::int16_t skinny = 1;
constexpr std::int16_t fit = 2;
constexpr std::int16_t fat = 3;
}  // namespace bodyType

#endif
