// The main window: the program's whole user interface.
#ifndef SHELL_MAIN_WINDOW_H
#define SHELL_MAIN_WINDOW_H

#include "platform/win32.h"

// Opens the main window, closes the splash window and runs the message loop. Returns the process's exit code, or 0 if
// the window can't be created.
int runMainWindow(int showCommand);

// The window's procedure.
LRESULT CALLBACK mainWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

#endif
