// Whether the live "neighborhood.iff" is still the file that was read. The game doesn't run when the program starts,
// but it may have run and saved by the time of the program's own save: a patch at an old offset would spoil its file.
#ifndef SAVE_LIVE_FILE_H
#define SAVE_LIVE_FILE_H

#include "world/neighborhood.h"

// False when a piece that waits to be patched, or the place at which new families that wait will cut the file, isn't
// where the reader found it. A file that can't be opened passes: the copy that follows fails by itself.
bool standsAsRead(const char* path, const Neighborhood& neighborhood);

#endif
