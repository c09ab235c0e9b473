// The object definition of a Sim, the chunk "OBJD": to the game, each Sim is an object with a GUID.
#ifndef GAMEFILES_OBJECT_DEFINITION_H
#define GAMEFILES_OBJECT_DEFINITION_H

#include <cstddef>
#include <cstdint>
#include <string>

#include "gamefiles/iff_builder.h"

// Size in bytes of the chunk, its header included.
constexpr std::size_t objectDefinitionSize = 292;

// The fields that a program looks at, as indices of the content's words of 2 bytes, little-endian.
namespace definitionWord {
constexpr std::size_t mainTree = 5;
constexpr std::size_t type = 9;
constexpr std::size_t guid = 14;  // two words
constexpr std::size_t bodyStringsId = 19;
constexpr std::size_t slotsId = 20;
constexpr std::size_t nameId = 41;
constexpr std::size_t initTree = 43;
constexpr std::size_t loadTree = 47;
constexpr std::size_t kindGuid = 70;  // two words, the same in many Sims
}  // namespace definitionWord

constexpr int personType = 2;

// The GUID is at offset 104 of the chunk.
IffChunk objectDefinition(const std::string& label, std::uint32_t guid);

#endif
