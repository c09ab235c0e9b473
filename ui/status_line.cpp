#include "ui/status_line.h"

namespace {

constexpr LONG statusLineHeight = 30;

StatusText text;
HWND splash = nullptr;

}  // namespace

const StatusText& statusLine() {
    return text;
}

void setStatusLine(std::string_view newText) {
    text.assign(newText);
}

void setSplashWindow(HWND window) {
    splash = window;
}

HWND splashWindow() {
    return splash;
}

RECT statusLineRectangle(HWND window) {
    RECT rectangle{};
    GetClientRect(window, &rectangle);
    rectangle.top = rectangle.bottom - statusLineHeight;
    return rectangle;
}

void showStatusLine() {
    if (splash == nullptr) return;
    const RECT rectangle = statusLineRectangle(splash);
    InvalidateRect(splash, &rectangle, TRUE);
    UpdateWindow(splash);
}
