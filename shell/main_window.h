// The main window: the program's whole user interface.
#ifndef SHELL_MAIN_WINDOW_H
#define SHELL_MAIN_WINDOW_H

#include "platform/win32.h"

// Opens the main window, takes the splash window away and runs the message loop. Returns the process's exit code; 0 if
// the window can't be created.
int runMainWindow(int showCommand);

// The window's procedure: creation, painting, commands, the close request and destruction.
LRESULT CALLBACK mainWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

#endif
