// What the classes of the program's two windows share.
#ifndef SHELL_WINDOW_CLASS_H
#define SHELL_WINDOW_CLASS_H

#include "platform/win32.h"

// Registers a class with the program's icons and a window's background, redrawn whole at each change of size. `cursor`
// is one of the system's, `menu` a menu of the resources or null.
void registerWindowClass(const char* name, WNDPROC procedure, LPCSTR cursor, LPCSTR menu);

#endif
