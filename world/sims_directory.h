// Where the game is installed.
#ifndef WORLD_SIMS_DIRECTORY_H
#define WORLD_SIMS_DIRECTORY_H

#include "platform/fixed_text.h"

using DirectoryText = FixedText<199>;

// The game's directory as its installer wrote it into the registry, without a trailing backslash. 0, or -1 with
// `directory` untouched if it isn't there.
int findSimsDirectory(DirectoryText& directory);

#endif
