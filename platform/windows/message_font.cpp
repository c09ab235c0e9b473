#include "platform/windows/own_calls.h"

// After windows.h, whose types it uses.
#include <commctrl.h>

#undef BeginPaint
#undef CreateWindowExA

namespace {

// Texts stand in rows of 20 pixels, and the longest label has 150 to its right end. Negative is the height of letters,
// as opposed to that of rows.
constexpr LONG largestFont = -14;

HFONT createMessageFont() {
    // Since Vista the structure has one more field, and XP refuses the longer size; the shorter one serves all.
    static_assert(_WIN32_WINNT < 0x0600);
    NONCLIENTMETRICSA metrics{};
    metrics.cbSize = sizeof metrics;
    if (SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0) == FALSE) return nullptr;
    // A user may ask for texts of twice the size; the windows would have to grow with them.
    if (metrics.lfMessageFont.lfHeight < largestFont) metrics.lfMessageFont.lfHeight = largestFont;
    return CreateFontIndirectA(&metrics.lfMessageFont);
}

// Lives as long as the program; null if there is none, which means the system's bitmap font.
HFONT messageFont() {
    static HFONT const font = createMessageFont();
    return font;
}

}  // namespace

HWND createWindow(DWORD extendedStyle, LPCSTR className, LPCSTR windowName, DWORD style, int x, int y, int width,
                  int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID parameter) {
    // The call itself does nothing. It makes Windows load the library with the program: the manifest asks for its
    // controls, and without it XP creates no window and shows no box.
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
