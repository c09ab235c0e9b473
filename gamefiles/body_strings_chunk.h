// The chunk with a Sim's body strings. It follows the file format alone, so tests compare the program's own text with
// it.
#ifndef GAMEFILES_BODY_STRINGS_CHUNK_H
#define GAMEFILES_BODY_STRINGS_CHUNK_H

#include <array>
#include <cstddef>
#include <string>

#include "gamefiles/iff_builder.h"

// The texts of entries 1 to 33 in order. An entry that is a pair has two: the mesh, then its skin.
using BodySlots = std::array<std::string, 50>;

// The last entry of a text: 29 in the base game, 32 or 33 once an expansion pack has dressed the Sim, 34 in all files
// of later editions.
enum class BodyEnding { atEntry29 = 29, atEntry32 = 32, atEntry33 = 33, atEntry34 = 34 };

// What later editions write where an outfit is missing.
constexpr const char* missingOutfit = "ADDED";

// The text behind the word "adult" or "child", from its two zero bytes to the last byte that isn't fill. Only a text of
// 34 entries has `lastEntry`, "ADDED" for the winter outfit of a Sim without one, and a mesh that has no skin without
// an
// "=".
Bytes bodyStringText(const BodySlots& slots, BodyEnding ending, const std::string& lastEntry = missingOutfit);

// The same with fill bytes (A3) up to `size` bytes. A longer text is not cut.
Bytes filledBodyStringText(const BodySlots& slots, BodyEnding ending, std::size_t size,
                           const std::string& lastEntry = missingOutfit);

// "STR#" 200: the word `tag` at offset 81, then the filled text of `textSize` bytes.
IffChunk bodyStringsChunk(const std::string& tag, const BodySlots& slots, BodyEnding ending, std::size_t textSize,
                          const std::string& label = "bodystring", const std::string& lastEntry = missingOutfit);

#endif
