// Which of the two editors opens the game: the one that knows the records of later editions, too, only where there are
// such records and the player has agreed.
#ifndef START_EDITIONS_H
#define START_EDITIONS_H

#include <string>

#include "gamefiles/templates.h"
#include "start/options.h"

// Asks where the game holds Sims of a later edition and neither `wish` nor an earlier answer decides; with `askNothing`
// it is the editor for the base editions then. An answer, and a wish but to be asked, are remembered in the file
// `settings`, an absolute path. `simsDirectory` has a trailing backslash.
Editions editionsToOpen(const std::string& simsDirectory, EditionsWish wish, const std::string& settings,
                        bool askNothing);

// The name of its program, which lies beside this one.
const char* editorFor(Editions editions);

#endif
