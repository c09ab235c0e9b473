#include "prepare/chunk_role.h"

#include <algorithm>
#include <iterator>

#include "gamefiles/character_ids.h"

ChunkRole roleOf(const IffChunk& chunk) {
    if (chunk.type == "XXXX" || chunk.type == "rsmp") return ChunkRole::dropped;
    if (chunk.type == "OBJD") return ChunkRole::definition;
    if (chunk.type == "CTSS") return ChunkRole::name;
    if (chunk.type == "STR#" && chunk.id == bodyStringsId) return ChunkRole::bodyStrings;
    return chunk.type == "BMP_" ? ChunkRole::picture : ChunkRole::carried;
}

std::vector<IffChunk> withRole(const std::vector<IffChunk>& chunks, ChunkRole role) {
    std::vector<IffChunk> found;
    std::ranges::copy_if(chunks, std::back_inserter(found),
                         [role](const IffChunk& chunk) { return roleOf(chunk) == role; });
    return found;
}
