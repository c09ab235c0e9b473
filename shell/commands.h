// The commands of the main window's controls and menu.
#ifndef SHELL_COMMANDS_H
#define SHELL_COMMANDS_H

#include "platform/win32.h"

// Runs the command `id`. `notification` is a control's notification code; a control runs its command for one code and
// ignores the others. False for an id that isn't one of the window's.
bool runCommand(int id, int notification);

#endif
