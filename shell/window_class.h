// The classes of the program's two windows.
#ifndef SHELL_WINDOW_CLASS_H
#define SHELL_WINDOW_CLASS_H

#include "platform/win32.h"

// Registers a class with the program's icons and the usual background. Its windows are redrawn whole when their size
// changes. `cursor` is one of the system's; `menu` is one of the resources, or null.
void registerWindowClass(const char* name, WNDPROC procedure, LPCSTR cursor, LPCSTR menu);

#endif
