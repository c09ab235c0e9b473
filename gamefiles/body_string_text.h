// The text of a Sim's body strings: the part of a "bodystring" chunk behind the word "adult" or "child". It follows the
// file format alone, so tests compare the program's own text with it.
#ifndef GAMEFILES_BODY_STRING_TEXT_H
#define GAMEFILES_BODY_STRING_TEXT_H

#include <array>
#include <cstddef>
#include <string>

#include "gamefiles/byte_writer.h"

// The texts of entries 1 to 33 in order. An entry that is a pair has two: the mesh, then its skin.
using BodySlots = std::array<std::string, 50>;

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

// The last entry of a text: 29 in the base game, 32 or 33 once an expansion pack has dressed the Sim.
enum class BodyEnding { atEntry29 = 29, atEntry32 = 32, atEntry33 = 33 };

// How a text ends that the program writes for a Sim whose neighbor record has this version.
BodyEnding sampleBodyEnding(const BodySlots& slots, int version);

// Number of texts in a "bodystring" chunk: the word "adult" or "child", and one for each entry.
std::size_t bodyStringCount(BodyEnding ending);

// From the two zero bytes behind the word to the last byte that isn't fill.
Bytes sampleBodyText(const BodySlots& slots, BodyEnding ending);

// The same, filled up to `size` bytes with A3. A longer text is neither cut nor filled.
Bytes filledSampleBodyText(const BodySlots& slots, BodyEnding ending, std::size_t size);

#endif
