#include "platform/windows/own_calls.h"

// After windows.h, whose types it uses.
#include <commctrl.h>

#include <algorithm>

#include "platform/windows/message_font.h"

#undef CreateWindowExA

namespace {

// A window may be larger than the place that Windows chooses for it allows.
void moveIntoWorkArea(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    const RECT area = workArea(window);
    const LONG x = std::max(std::min(place.left, area.right - (place.right - place.left)), area.left);
    const LONG y = std::max(std::min(place.top, area.bottom - (place.bottom - place.top)), area.top);
    if (x == place.left && y == place.top) return;
    SetWindowPos(window, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

HWND ownCreateWindowExA(DWORD extendedStyle, LPCSTR className, LPCSTR windowName, DWORD style, int x, int y, int width,
                        int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID parameter) {
    // Does nothing itself, but makes Windows load the library. The manifest asks for its controls, and without it XP
    // creates no window and shows no box.
    InitCommonControls();
    const bool isControl = (style & WS_CHILD) != 0;
    if (!isControl) updateMessageFont();
    const bool isPlacedByWindows = x == CW_USEDEFAULT;
    if (!isPlacedByWindows) {
        const RECT place = toPixels({x, y, x + width, y + height});
        x = place.left;
        y = place.top;
        width = place.right - place.left;
        height = place.bottom - place.top;
    }
    HWND const window = CreateWindowExA(extendedStyle, className, windowName, style, x, y, width, height, parent, menu,
                                        instance, parameter);
    if (window == nullptr) return nullptr;
    if (isControl) SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(messageFont()), FALSE);
    if (isPlacedByWindows) moveIntoWorkArea(window);
    return window;
}
