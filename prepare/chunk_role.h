// What becomes of each chunk of a character file when a template is made of it.
#ifndef PREPARE_CHUNK_ROLE_H
#define PREPARE_CHUNK_ROLE_H

#include <vector>

#include "gamefiles/iff_builder.h"

enum class ChunkRole {
    dropped,      // free room and the resource map
    definition,   // "OBJD", carried to its fixed place
    name,         // "CTSS", written anew
    bodyStrings,  // "STR#" 200, written anew
    picture,      // "BMP_", neutralised
    carried,      // all others, which make a Sim act: as they are
};

ChunkRole roleOf(const IffChunk& chunk);

// Those of the role, in the order of `chunks`.
std::vector<IffChunk> withRole(const std::vector<IffChunk>& chunks, ChunkRole role);

#endif
