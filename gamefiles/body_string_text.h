// The text of a Sim's body strings, built from its slots: what stands in a character file behind the word "adult" or
// "child". Written from the format alone, so that tests can hold the program's own text against it.
#ifndef GAMEFILES_BODY_STRING_TEXT_H
#define GAMEFILES_BODY_STRING_TEXT_H

#include <array>
#include <cstddef>
#include <string>

#include "gamefiles/byte_writer.h"

// 50 texts in the order in which the entries 1 to 33 name them; a pair takes two.
using BodySlots = std::array<std::string, 50>;

// The slots that tests and samples name. A mesh stands before its skin.
namespace sampleSlot {
constexpr std::size_t bodyMesh = 0;
constexpr std::size_t bodySkin = 1;
constexpr std::size_t headMesh = 2;
constexpr std::size_t headSkin = 3;
constexpr std::size_t gender = 13;
constexpr std::size_t ageText = 14;
constexpr std::size_t skinTone = 15;
constexpr std::size_t nBodyMesh = 16;
constexpr std::size_t uBodyMesh = 18;
constexpr std::size_t handLOMesh = 20;
constexpr std::size_t fBodyMesh = 36;
constexpr std::size_t fHandLOMesh = 38;
constexpr std::size_t f100Mesh = 42;
constexpr std::size_t w100Mesh = 48;
constexpr std::size_t w100Skin = 49;
}  // namespace sampleSlot

// The entry with which a text ends: 29 in the base game, 32 or 33 once an expansion pack has dressed the Sim.
enum class BodyEnding { atEntry29, atEntry32, atEntry33 };

// How the program ends the text of a Sim whose neighbor record has this version.
BodyEnding sampleBodyEnding(const BodySlots& slots, int version);

// Number of strings of a "bodystring" chunk with this ending, the word "adult" or "child" counted.
int bodyStringCount(BodyEnding ending);

// The text from the two zero bytes behind the word to the last byte that isn't fill.
Bytes sampleBodyText(const BodySlots& slots, BodyEnding ending);

// The same, with the fill byte A3 up to `size` bytes; a longer text is left whole and unfilled.
Bytes filledSampleBodyText(const BodySlots& slots, BodyEnding ending, std::size_t size);

#endif
