// The search for a window by its title: FindWindowA (platform/native/api/windowing.h) asks the program's own windows
// first and then the X server.
#ifndef PLATFORM_NATIVE_WINDOWING_X_WINDOWS_H
#define PLATFORM_NATIVE_WINDOWING_X_WINDOWS_H

#include "platform/native/api/types.h"

// The program's own top-level window, message box or dialog of that whole title; null if there is none.
HWND findOwnWindow(const char* title);

#endif
