// The calls on existing windows: showing, drawing, styles, messages.
#include <QApplication>
#include <QWidget>
#include <QWindow>

#include "platform/native/api/system.h"
#include "platform/native/api/windowing.h"
#include "platform/native/events/event_pump.h"
#include "platform/native/screen/scale.h"
#include "platform/native/windowing/client_area.h"
#include "platform/native/windowing/window.h"
#include "platform/native/xserver/title_search.h"

namespace {

void show(Window& window) {
    QWidget& widget = *window.widget();
    widget.show();
    if (window.clientArea() == nullptr) return;
    // Activates the window in case there is no window manager. A splash window takes no focus.
    if (widget.windowType() != Qt::SplashScreen) widget.activateWindow();
    waitForScreen([&widget] { return widget.windowHandle() != nullptr && widget.windowHandle()->isExposed(); });
}

}  // namespace

BOOL ShowWindow(HWND window, int) {
    Window* const found = findWindow(window);
    if (found == nullptr) return FALSE;
    const bool wasVisible = found->widget()->isVisible();
    if (!wasVisible) show(*found);
    return wasVisible ? TRUE : FALSE;
}

BOOL UpdateWindow(HWND window) {
    const Window* const found = findWindow(window);
    if (found == nullptr) return FALSE;
    if (found->clientArea() != nullptr && found->clientArea()->waits()) SendMessageA(window, WM_PAINT, 0, 0);
    bringToScreen();
    return TRUE;
}

BOOL InvalidateRect(HWND window, const RECT* rectangle, BOOL erase) {
    const Window* const found = findWindow(window);
    if (found == nullptr) return FALSE;
    ClientArea* const area = found->clientArea();
    if (area == nullptr) return TRUE;  // a control draws itself when it must
    const QRect part = rectangle == nullptr ? area->whole()
                                            : toPixels(QRect(QPoint(rectangle->left, rectangle->top),
                                                             QPoint(rectangle->right - 1, rectangle->bottom - 1)));
    area->invalidate(part, erase != FALSE);
    return TRUE;
}

BOOL IsWindow(HWND window) {
    return findWindow(window) != nullptr ? TRUE : FALSE;
}

BOOL GetClientRect(HWND window, RECT* rectangle) {
    const Window* const found = findWindow(window);
    if (found == nullptr) return FALSE;
    const QSize size = found->clientSize();
    *rectangle = {0, 0, toUnits(size.width()), toUnits(size.height())};
    return TRUE;
}

LONG SetWindowLongA(HWND window, int index, LONG value) {
    Window* const found = findWindow(window);
    if (found == nullptr || index != GWL_STYLE) return 0;
    const auto old = static_cast<LONG>(found->style());
    found->setStyle(static_cast<DWORD>(value));
    return old;
}

HWND GetFocus() {
    const std::vector<HWND> windows = allWindows();
    for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
        const QWidget* const widget = findWindow(*window)->widget();
        if (QApplication::focusWidget() == nullptr ? widget->window()->focusWidget() == widget : widget->hasFocus()) {
            return *window;
        }
    }
    return nullptr;
}

HWND SetFocus(HWND window) {
    HWND const before = GetFocus();
    const Window* const found = findWindow(window);
    if (found != nullptr) found->widget()->setFocus(Qt::OtherFocusReason);
    return before;
}

LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    Window* const found = findWindow(window);
    return found == nullptr ? 0 : found->receive(message, wParam, lParam);
}

HWND FindWindowA(LPCSTR className, LPCSTR windowName) {
    if (className != nullptr || windowName == nullptr) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    if (HWND own = findOwnWindow(windowName)) return own;
    // Callers only learn that another program's window exists, so one handle is enough for all of them.
    static char foreignWindow;
    return isTitleOnServer(windowName) ? reinterpret_cast<HWND>(&foreignWindow) : nullptr;
}
