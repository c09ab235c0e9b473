// The texts of paths, and the names of the directories that more than one of them goes through.
#ifndef WORLD_PATHS_H
#define WORLD_PATHS_H

#include "platform/fixed_text.h"

using DirectoryText = FixedText<199>;  // a directory, or a character file
using PathText = FixedText<299>;       // any other file in one of these directories

// In a neighborhood's directory.
constexpr const char* neighborhoodFileName = "neighborhood.iff";

// A neighborhood keeps its character files in this directory.
constexpr const char* charactersDirectory = "Characters";

// A save keeps old versions in this directory, below that of the files, and begins the names of new ones so.
constexpr const char* backupsDirectory = "Backups";
constexpr const char* temporaryPrefix = "TMP";

#endif
