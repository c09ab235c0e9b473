// The object definition of a Sim, the chunk "OBJD": to the game, each Sim is an object with a GUID.
#ifndef GAMEFILES_OBJECT_DEFINITION_H
#define GAMEFILES_OBJECT_DEFINITION_H

#include <cstddef>
#include <cstdint>
#include <string>

#include "gamefiles/iff_builder.h"

// Size in bytes of the chunk, its header included.
constexpr std::size_t objectDefinitionSize = 292;

// The GUID is at offset 104 of the chunk.
IffChunk objectDefinition(const std::string& label, std::uint32_t guid);

#endif
