// Creation and destruction of windows.
#include <QWidget>
#include <cstdio>

#include "platform/letter_case.h"
#include "platform/native/api/system.h"
#include "platform/native/screen/display.h"
#include "platform/native/screen/scale.h"
#include "platform/native/windowing/client_area.h"
#include "platform/native/windowing/combo_box.h"
#include "platform/native/windowing/top_level_window.h"

namespace {

std::unique_ptr<Control> makeControl(LPCSTR className, LPCSTR text, DWORD style, HWND parent, int id) {
    Window* const owner = findWindow(parent);
    if (owner == nullptr || owner->clientArea() == nullptr) return nullptr;
    QWidget* const area = owner->clientArea();
    if (equalInAnyCase(className, "ComboBox")) return std::make_unique<ComboBox>(style, parent, id, area);
    if (equalInAnyCase(className, "Button")) return std::make_unique<Button>(style, parent, id, text, area);
    SetLastError(ERROR_CANNOT_FIND_WND_CLASS);
    return nullptr;
}

HWND createTopLevel(LPCSTR className, LPCSTR title, DWORD style, const Placement& placement) {
    const WindowClass* const windowClass = findWindowClass(className);
    if (windowClass == nullptr) return nullptr;
    HWND const handle = addWindow(std::make_unique<TopLevelWindow>(*windowClass, title, style, placement))->handle();
    SendMessageA(handle, WM_CREATE, 0, 0);
    if ((style & WS_VISIBLE) != 0) ShowWindow(handle, SW_SHOW);
    return handle;
}

}  // namespace

HWND CreateWindowExA(DWORD, LPCSTR className, LPCSTR windowName, DWORD style, int x, int y, int width, int height,
                     HWND parent, HMENU menu, HINSTANCE, LPVOID) {
    if (!hasDisplay()) {
        std::fprintf(stderr, "No window can be opened: %s.\n", whyNoDisplay().c_str());
        SetLastError(ERROR_GEN_FAILURE);
        return nullptr;
    }
    if (className == nullptr) {
        SetLastError(ERROR_CANNOT_FIND_WND_CLASS);
        return nullptr;
    }
    if ((style & WS_CHILD) == 0) return createTopLevel(className, windowName, style, {x, y, width, height});
    const int id = static_cast<int>(reinterpret_cast<std::intptr_t>(menu));
    std::unique_ptr<Control> control = makeControl(className, windowName, style, parent, id);
    if (control == nullptr) return nullptr;
    control->place(toPixels(QRect(x, y, width, height)));
    return addWindow(std::move(control))->handle();
}

BOOL DestroyWindow(HWND window) {
    Window* const found = findWindow(window);
    if (found == nullptr) return FALSE;
    if (auto* const topLevel = dynamic_cast<TopLevelWindow*>(found); topLevel != nullptr) {
        topLevel->widget()->hide();
        SendMessageA(window, WM_DESTROY, 0, 0);
    }
    dropWindow(window);
    return TRUE;
}
