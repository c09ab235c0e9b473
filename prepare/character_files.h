// The character files of the player's game that a template can be made of.
#ifndef PREPARE_CHARACTER_FILES_H
#define PREPARE_CHARACTER_FILES_H

#include <vector>

#include "prepare/source_choice.h"

// Those of all neighborhoods, in the order of their numbers and then of the names. `simsDirectory` has a trailing
// backslash. A file that can't be read or doesn't serve is left out.
std::vector<TemplateSource> templateSources(const char* simsDirectory);

#endif
