// Finds the game for the programs around the editor. The editor itself knows the registry alone, so these also see to
// it that the registry leads there: natively by the Wine prefix that the editor gets, on Windows by an entry.
#ifndef WORLD_GAME_SEARCH_H
#define WORLD_GAME_SEARCH_H

#include <string>

#include "world/sims_directory.h"

struct GameWish {
    std::string directory;    // a game's directory or, natively, a Wine prefix as well; empty: search
    bool askNothing = false;  // no window and no box: words go to standard output, and questions count as answered OK
    bool changesNothing = false;  // neither the registry nor what is remembered
};

// Finds the game: the one of `wish.directory`; else, natively, that of $WINEPREFIX; else the one chosen the last time;
// else what the registry has and what lies in the places where Wine prefixes are kept. Asks where several are found
// or none. What was wished or chosen is remembered in tidewright.ini in `ownDirectory`, an absolute path.
//
// Returns 0, and the game's directory with a trailing backslash. From then on findSimsDirectory finds it, in this
// process and in its children: $WINEPREFIX is set natively. Otherwise returns the exit code after having said why:
// exitCode::gameNotFound (world/game_check.h), or 1 if the user cancelled.
//
// Relative paths in `wish` and in $WINEPREFIX count from the working directory, so call this before changing that.
int findGame(const GameWish& wish, const std::string& ownDirectory, DirectoryText& simsDirectory);

#endif
