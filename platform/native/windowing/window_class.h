// Registered window classes.
#ifndef PLATFORM_NATIVE_WINDOWING_WINDOW_CLASS_H
#define PLATFORM_NATIVE_WINDOWING_WINDOW_CLASS_H

#include <string>

#include "platform/native/api/windowing.h"

struct WindowClass {
    std::string name;
    UINT style;
    WNDPROC procedure;
    HICON icon;
    HICON smallIcon;
    HCURSOR cursor;
    HBRUSH background;
    LPCSTR menuName;  // an id of MAKEINTRESOURCEA, or null
};

// Finds a class by its name, without regard to ASCII case. Null, with ERROR_CANNOT_FIND_WND_CLASS, if there is none.
// The class lives until the process ends.
const WindowClass* findWindowClass(LPCSTR name);

#endif
