// Makes "Template.iff" out of a character file, with the chunks that make a Sim act and without the Sim.
#ifndef PREPARE_TEMPLATE_MAKER_H
#define PREPARE_TEMPLATE_MAKER_H

#include <vector>

#include "gamefiles/iff_builder.h"
#include "gamefiles/templates.h"

// What becomes of each chunk of a character file.
enum class ChunkRole {
    dropped,      // free room and the resource map
    definition,   // "OBJD", carried to its fixed place
    name,         // "CTSS", written anew
    bodyStrings,  // "STR#" 200, written anew
    picture,      // "BMP_", neutralised
    carried,      // all others, which make a Sim act: as they are
};

// The chunks of the role, in the order of `chunks`.
std::vector<IffChunk> withRole(const std::vector<IffChunk>& chunks, ChunkRole role);

// The whole file, from the chunks of a character file that refusalOf accepts. "OBJD", "CTSS" and "STR#" 200 lie where
// a save patches them (gamefiles/templates.h). The rest keeps its order, as far as it fits in front of them;
// what doesn't fit follows behind. Empty if a search of the resource map wouldn't find these three, because of its
// other labels or of the file's length.
Bytes makeTemplate(const std::vector<IffChunk>& source, Editions editions = Editions::base);

#endif
