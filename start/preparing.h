// Makes the game and the player's own directory, which is the working directory, ready for the editor. Game directories
// have a trailing backslash. With `askNothing` words go to standard output, and nothing is asked (ui/words.h).
#ifndef START_PREPARING_H
#define START_PREPARING_H

#include <string>

#include "gamefiles/templates.h"

// Brings what is missing (prepare/preparation.h), after a question that names each file, and takes over the files of an
// earlier version, after another. Silent if nothing is to be made. False if the player cancelled or something is
// missing still, which is said.
bool prepare(const std::string& simsDirectory, Editions editions, bool newTemplate, bool askNothing);

// Says what checkReadiness has found, and whether everything is ready. False if something isn't.
bool sayWhetherReady(const std::string& simsDirectory, Editions editions, bool askNothing);

// Says what checkReadiness has found, if anything. Where something prevents a save, the player is asked, and false is
// for Cancel.
bool isGoodToGo(const std::string& simsDirectory, Editions editions, bool askNothing);

#endif
