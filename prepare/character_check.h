// Whether the behaviour of a character file is that of a player's Sim, so that a template can be made of it.
#ifndef PREPARE_CHARACTER_CHECK_H
#define PREPARE_CHARACTER_CHECK_H

#include <string>
#include <vector>

#include "gamefiles/iff_builder.h"

// Why no template can be made of a character file with these chunks, as the end of a sentence about the file
// ("has ..."); empty if one can.
std::string refusalOf(const std::vector<IffChunk>& chunks);

// Whether the main tree calls none of the trees that all Sims share, so that the Sim would stand still. This is so in
// the template that earlier versions of this program came with, and in the Sims saved from it. False without a main
// tree.
bool standsStill(const std::vector<IffChunk>& chunks);

#endif
