// Which control of a window has the focus. Windows leaves that to each program, except in dialogs.
#ifndef PLATFORM_WINDOWS_FOCUS_H
#define PLATFORM_WINDOWS_FOCUS_H

#include <windows.h>

// For a window that has the focus itself: passes it to the control that last had it, or else to the first that can.
void focusControlOf(HWND window);

#endif
