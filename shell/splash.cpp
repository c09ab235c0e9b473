#include "shell/splash.h"

#include <array>

#include "resources/ids.h"
#include "shell/window_class.h"
#include "ui/status_line.h"

namespace {

constexpr int screenX = 150;
constexpr int screenY = 100;
constexpr int windowWidth = 598;
constexpr int windowHeight = 435;
constexpr int pictureWidth = 598;
constexpr int pictureHeight = 400;

void paintStatusLine(HWND window) {
    PAINTSTRUCT paint{};
    const HDC dc = BeginPaint(window, &paint);
    RECT rectangle = statusLineRectangle(window);
    DrawTextA(dc, statusLine().c_str(), -1, &rectangle, DT_CENTER);
    EndPaint(window, &paint);
}

LRESULT CALLBACK splashProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
        case WM_PAINT:
            paintStatusLine(window);
            return 0;
        default:
            return DefWindowProcA(window, message, wParam, lParam);
    }
}

// Draws on the screen itself, once. Nothing repaints the picture.
void drawPicture() {
    const HANDLE picture =
        LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDB_SPLASH), IMAGE_BITMAP, 0, 0, LR_DEFAULTCOLOR);
    if (picture == nullptr) return;
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    const HGDIOBJ before = SelectObject(memory, picture);
    BitBlt(screen, screenX, screenY, pictureWidth, pictureHeight, memory, 0, 0, SRCCOPY);
    SelectObject(memory, before);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    DeleteObject(picture);
}

}  // namespace

bool showSplashWindow() {
    const HINSTANCE instance = GetModuleHandleA(nullptr);
    std::array<char, 100> className{};
    LoadStringA(instance, IDS_SPLASH_CLASS, className.data(), className.size());
    registerWindowClass(className.data(), splashProc, IDC_APPSTARTING, nullptr);
    const HWND window = CreateWindowExA(0, className.data(), "Loading", WS_DLGFRAME, screenX, screenY, windowWidth,
                                        windowHeight, nullptr, nullptr, instance, nullptr);
    if (window == nullptr) return false;
    setSplashWindow(window);
    ShowWindow(window, SW_SHOW);
    UpdateWindow(window);
    drawPicture();
    return true;
}
