// Chooses the character file that a template is made of.
#ifndef PREPARE_SOURCE_CHOICE_H
#define PREPARE_SOURCE_CHOICE_H

#include <string>
#include <vector>

#include "gamefiles/iff_builder.h"

struct TemplateSource {
    std::string path;
    std::vector<IffChunk> chunks;
};

// The first of those that behave as most do: their object definitions and the chunks that a template carries are the
// same, in any order. Of two behaviours that are equally frequent, the one that comes first is chosen. Null if
// `sources` is empty.
const TemplateSource* chooseSource(const std::vector<TemplateSource>& sources);

#endif
