// Whether the live "neighborhood.iff" is still the file that was read. The game may have run and saved since then, and
// patches at the old offsets would spoil its file.
#ifndef SAVE_LIVE_FILE_H
#define SAVE_LIVE_FILE_H

#include "world/neighborhood.h"

// False if a piece that is to be patched isn't where the reader found it, if the file has changed at the place where
// new families will cut it, or if it can't be opened.
bool isAsRead(const char* path, const Neighborhood& neighborhood);

#endif
