#include "platform/native/windowing/window.h"

#include <QWidget>

#include "platform/native/api/system.h"
#include "platform/native/api/windowing.h"
#include "platform/native/base/handle_table.h"
#include "platform/native/base/text1252.h"

namespace {

HandleTable<Window>& windows() {
    static HandleTable<Window> table;
    return table;
}

}  // namespace

Window::Window(DWORD style, HWND parent) : handle_(static_cast<HWND>(newHandle())), parent_(parent), style_(style) {}

void Window::setStyle(DWORD style) {
    style_ = style;
    widget()->setEnabled((style & WS_DISABLED) == 0);
    widget()->setVisible((style & WS_VISIBLE) != 0);
}

QSize Window::clientSize() const {
    return widget()->size();
}

Window* addWindow(std::unique_ptr<Window> window) {
    const HWND handle = window->handle();
    return windows().add(handle, std::move(window));
}

Window* findWindow(HWND window) {
    Window* const found = windows().find(window);
    if (found == nullptr) SetLastError(ERROR_INVALID_WINDOW_HANDLE);
    return found;
}

std::vector<HWND> allWindows() {
    std::vector<HWND> all;
    for (const auto& [handle, window] : windows()) {
        all.push_back(window->handle());
    }
    return all;
}

std::vector<HWND> controlsOf(HWND window) {
    std::vector<HWND> controls;
    for (const auto& [handle, control] : windows()) {
        if (control->parent() == window) controls.push_back(control->handle());
    }
    return controls;
}

HWND findOwnWindow(const char* title) {
    const QString wanted = qtText(title);
    for (const auto& [handle, window] : windows()) {
        if (window->parent() == nullptr && window->widget()->windowTitle() == wanted) return window->handle();
    }
    return nullptr;
}

void dropWindow(HWND window) {
    for (HWND const control : controlsOf(window)) {
        dropWindow(control);
    }
    windows().take(window);
}

void dropWindows() {
    for (HWND const window : allWindows()) {
        dropWindow(window);
    }
}
