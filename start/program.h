// What the program that players start does, without its entry.
#ifndef START_PROGRAM_H
#define START_PROGRAM_H

// Finds the game, makes it and the player's own directory ready, makes a restore point, runs the editor and says what
// became of the evening. The arguments are those of start/options.h; the first one is the program's name.
//
// Returns the process's exit code: that of the editor, or 0 after an option that only says or prepares something, or 1
// if the editor wasn't started, or that of a refusal (world/game_check.h).
int runStart(int argumentCount, char** arguments);

#endif
