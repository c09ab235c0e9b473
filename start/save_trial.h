// Tries whether a save could write what it writes in a neighborhood.
#ifndef START_SAVE_TRIAL_H
#define START_SAVE_TRIAL_H

#include "start/neighborhood_files.h"
#include "start/readiness.h"

// Adds what would prevent a save: a directory or a file that can't be written, a file that can't be read, too little
// room. Makes the first file of a save in each directory, and deletes it.
void trySave(const NeighborhoodPlace& place, Readiness& readiness);

#endif
