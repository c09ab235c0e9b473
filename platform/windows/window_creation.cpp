#include "platform/windows/own_calls.h"

// After windows.h, whose types it uses.
#include <commctrl.h>

#include "platform/windows/message_font.h"

#undef CreateWindowExA

HWND createWindow(DWORD extendedStyle, LPCSTR className, LPCSTR windowName, DWORD style, int x, int y, int width,
                  int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID parameter) {
    // Does nothing itself, but makes Windows load the library. The manifest asks for its controls, and without it XP
    // creates no window and shows no box.
    InitCommonControls();
    HWND const window = CreateWindowExA(extendedStyle, className, windowName, style, x, y, width, height, parent, menu,
                                        instance, parameter);
    if (window != nullptr && (style & WS_CHILD) != 0) {
        SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(messageFont()), FALSE);
    }
    return window;
}
