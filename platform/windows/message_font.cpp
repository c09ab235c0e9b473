#include "platform/windows/own_calls.h"

// After windows.h, whose types it uses.
#include <commctrl.h>

#undef BeginPaint
#undef CreateWindowExA

namespace {

// Rows of text are 20 pixels apart, and the longest label is 150 pixels wide. A negative value is the height of the
// letters rather than of the row.
constexpr LONG largestFont = -14;

HFONT createMessageFont() {
    // Vista added a field to the structure, and XP refuses the longer size. The shorter size works everywhere.
    static_assert(_WIN32_WINNT < 0x0600);
    NONCLIENTMETRICSA metrics{};
    metrics.cbSize = sizeof metrics;
    if (SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0) == FALSE) return nullptr;
    // A user may choose a font twice as large, for which the windows would have to grow.
    if (metrics.lfMessageFont.lfHeight < largestFont) metrics.lfMessageFont.lfHeight = largestFont;
    return CreateFontIndirectA(&metrics.lfMessageFont);
}

// Lives until the program ends. Null if it can't be created, which selects the system's bitmap font.
HFONT messageFont() {
    static HFONT const font = createMessageFont();
    return font;
}

}  // namespace

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

HDC beginPaint(HWND window, PAINTSTRUCT* paint) {
    HDC const dc = BeginPaint(window, paint);
    if (dc != nullptr && messageFont() != nullptr) SelectObject(dc, messageFont());
    return dc;
}
