// The chunks of a sample's character file, to change some of them.
#ifndef TESTS_PREPARE_CHARACTER_CHUNKS_H
#define TESTS_PREPARE_CHARACTER_CHUNKS_H

#include <algorithm>
#include <string>
#include <vector>

#include "gamefiles/character_file.h"
#include "gamefiles/iff_reader.h"

using Chunks = std::vector<IffChunk>;

inline Chunks chunksOf(const SampleCharacter& character) {
    return readIff(makeCharacterFile(character).bytes).chunks;
}

// There must be one.
inline IffChunk& chunkIn(Chunks& chunks, const std::string& type, int id) {
    return *std::ranges::find_if(chunks, [&](const IffChunk& chunk) { return chunk.type == type && chunk.id == id; });
}

#endif
