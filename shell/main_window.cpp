#include "shell/main_window.h"

#include <array>

#include "resources/ids.h"
#include "shell/commands.h"
#include "shell/window_class.h"
#include "shell/window_texts.h"
#include "ui/controls.h"
#include "ui/status_line.h"
#include "ui/window_parts.h"
#include "world/neighborhoods.h"

namespace {

// The height includes the open list. Windows' newer controls show up to 30 entries whatever it is.
HWND createCombo(HWND window, LONG x, LONG y, int id) {
    return createList(window, {x, y, x + 200, y + 200}, id);
}

HWND createButton(HWND window, LPCSTR text, LONG x, LONG y, int id) {
    return createControl(window, "Button", text, WS_DISABLED, {x, y, x + 100, y + 30}, id);
}

void onCreate(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    const LONG left = client.left, top = client.top, bottom = client.bottom;
    Controls& created = controls();
    created.mainWindow = window;
    created.neighborhoodCombo = createCombo(window, left + 160, top + 10, controlId::neighborhoodCombo);
    created.familyCombo = createCombo(window, left + 160, top + 40, controlId::familyCombo);
    created.simCombo = createCombo(window, left + 160, top + 70, controlId::simCombo);
    created.childToTeenButton =
        createButton(window, "Child to Teen", left + 10, bottom - 150, controlId::childToTeenButton);
    created.teenToAdultButton =
        createButton(window, "Teen to Adult", left + 120, bottom - 150, controlId::teenToAdultButton);
    created.moveOutButton = createButton(window, "Move Out", left + 10, bottom - 50, controlId::moveOutButton);
    addNeighborhoodEntries(listedNeighborhoodCount());
}

LRESULT onCommand(HWND window, WPARAM wParam, LPARAM lParam) {
    if (!runCommand(LOWORD(wParam), HIWORD(wParam))) return DefWindowProcA(window, WM_COMMAND, wParam, lParam);
    RECT client{};
    GetClientRect(window, &client);
    InvalidateRect(window, &client, TRUE);
    UpdateWindow(window);
    return 0;
}

bool somethingIsUnsaved() {
    for (int slot = 0; slot < listedNeighborhoodCount(); ++slot) {
        if (neighborhoods[static_cast<std::size_t>(slot)]->isDirty()) return true;
    }
    return false;
}

LRESULT onClose(HWND window, WPARAM wParam, LPARAM lParam) {
    if (somethingIsUnsaved() &&
        MessageBoxA(window, "You haven't saved your changes.  Exit without saving?", "Exit?", MB_OKCANCEL) != IDOK) {
        return 0;
    }
    return DefWindowProcA(window, WM_CLOSE, wParam, lParam);
}

int runMessageLoop(HWND window) {
    const HACCEL accelerators = LoadAcceleratorsA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDR_MAIN_ACCELERATORS));
    MSG message{};
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        if (TranslateAcceleratorA(window, accelerators, &message) != 0) continue;
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    return static_cast<int>(message.wParam);
}

}  // namespace

int runMainWindow(int showCommand) {
    const HINSTANCE instance = GetModuleHandleA(nullptr);
    std::array<char, 100> className{};
    LoadStringA(instance, IDS_MAIN_CLASS, className.data(), className.size());
    registerWindowClass(className.data(), mainWindowProc, IDC_ARROW, MAKEINTRESOURCEA(IDR_MAIN_MENU));
    const HWND window =
        CreateWindowExA(0, className.data(), "Tidewright", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, CW_USEDEFAULT,
                        CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, instance, nullptr);
    if (window == nullptr) return 0;
    ShowWindow(window, showCommand);
    UpdateWindow(window);
    DestroyWindow(splashWindow());
    setSplashWindow(nullptr);
    return runMessageLoop(window);
}

LRESULT CALLBACK mainWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            onCreate(window);
            return 0;
        case WM_PAINT:
            paintMainWindow(window);
            return 0;
        case WM_COMMAND:
            return onCommand(window, wParam, lParam);
        case WM_CLOSE:
            return onClose(window, wParam, lParam);
        case WM_DESTROY:
            PostQuitMessage(0);
            return 0;
        default:
            return DefWindowProcA(window, message, wParam, lParam);
    }
}
