// Whether the behaviour of a character file is that of a player's Sim, so that a template can be made of it.
#ifndef PREPARE_CHARACTER_CHECK_H
#define PREPARE_CHARACTER_CHECK_H

#include <string>
#include <vector>

#include "gamefiles/iff_builder.h"

// Why no template can be made of a character file with these chunks, as the end of a sentence about the file
// ("has ..."); empty if one can.
std::string refusalOf(const std::vector<IffChunk>& chunks);

#endif
