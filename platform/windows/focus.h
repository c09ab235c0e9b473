// Which control of a window has the keyboard. Windows leaves that to each program, except in dialogs.
#ifndef PLATFORM_WINDOWS_FOCUS_H
#define PLATFORM_WINDOWS_FOCUS_H

#include <windows.h>

// Hands the keyboard, which `window` itself has been given, on to the control that had it last, or else to the first
// one that can have it.
void focusControlOf(HWND window);

#endif
