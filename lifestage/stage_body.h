// What the body of a stage depends on. The constructor of BodyStrings that makes the body is in stage_body.cpp.
#ifndef LIFESTAGE_STAGE_BODY_H
#define LIFESTAGE_STAGE_BODY_H

#include <cstdint>
#include <string_view>

// The word for a skin tone: "lgt" for 1, "med" for 3, "drk" for any other.
std::string_view toneWord(std::int16_t skinTone);

// The age that selects the grown body. Any age but 0 would.
constexpr std::uint8_t grownBody = 27;

// The types of the grown body. No operation uses the teen's: a new teen is made out of the skinny body.
namespace bodyType {
constexpr std::int16_t teen = 0;
constexpr std::int16_t skinny = 1;
constexpr std::int16_t fit = 2;
constexpr std::int16_t fat = 3;
}  // namespace bodyType

#endif
