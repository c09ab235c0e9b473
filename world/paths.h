// The texts of paths, and the names of the directories that more than one of them goes through.
#ifndef WORLD_PATHS_H
#define WORLD_PATHS_H

#include "platform/fixed_text.h"

using DirectoryText = FixedText<199>;  // a directory, or a character file
using PathText = FixedText<299>;       // any other file in one of these directories

// A neighborhood keeps its character files in this directory.
constexpr const char* charactersDirectory = "Characters";

#endif
