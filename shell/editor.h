// The editor from its start to its end.
#ifndef SHELL_EDITOR_H
#define SHELL_EDITOR_H

#include "world/record_format.h"

// Checks the game, reads its neighborhoods, of whose records those of `formats`, and runs the main window. Returns the
// process's exit code.
int runEditor(RecordFormats formats, int showCommand);

#endif
