// Makes "Template.iff" out of a character file, with the chunks that make a Sim act and without the Sim.
#ifndef PREPARE_TEMPLATE_MAKER_H
#define PREPARE_TEMPLATE_MAKER_H

#include <vector>

#include "gamefiles/iff_builder.h"

// The whole file, from the chunks of a character file that refusalOf accepts. "OBJD", "CTSS" and "STR#" 200 lie where
// a save patches them (gamefiles/character_template.h). The rest keeps its order, as far as it fits in front of them;
// what doesn't fit follows behind. Empty if a search of the resource map wouldn't find these three, because of its
// other labels or of the file's length.
Bytes makeTemplate(const std::vector<IffChunk>& source);

#endif
