// Whether the behavior of a character file is that of a player's Sim, so that a template can be made of it.
#ifndef PREPARE_CHARACTER_CHECK_H
#define PREPARE_CHARACTER_CHECK_H

#include <string>
#include <vector>

#include "gamefiles/iff_builder.h"
#include "gamefiles/templates.h"

// Why no template can be made of a character file with these chunks, as the end of a sentence about the file
// ("has ..."); empty if one can. One for later editions needs a file of theirs, which has 35 body strings.
std::string refusalOf(const std::vector<IffChunk>& chunks, Editions editions = Editions::base);

#endif
