// What the controls and the menu of the main window do.
#ifndef SHELL_COMMANDS_H
#define SHELL_COMMANDS_H

#include "platform/win32.h"

// Carries out the command `id` with the notification code of a control. False, with nothing done, for an id that is
// none of the window's. A control's other notifications are known and do nothing.
bool runCommand(int id, int notification);

#endif
