// What the program that makes a player's game ready does, without its entry.
#ifndef PREPARE_PROGRAM_H
#define PREPARE_PROGRAM_H

// Refuses without a game, beside a running one, and in a directory that the program wasn't unpacked to. Asks once, if
// anything is to be made, prepares, and says in a box what was done. The options are "--yes", to ask nothing,
// "--new-template", and "--if-needed", to show nothing if nothing is missing; the first argument is the program's name.
// Without a display the texts go to standard error, and a question counts as cancelled.
//
// Returns the process's exit code: 0 if everything is ready, 1 if something is missing or the user cancelled, or that
// of a refusal (world/game_check.h).
int runProgram(int argumentCount, char** arguments);

#endif
