// The object behind a window handle: a top-level window of a class, a control, a message box or a dialog.
#ifndef PLATFORM_NATIVE_WINDOWING_WINDOW_H
#define PLATFORM_NATIVE_WINDOWING_WINDOW_H

#include <QSize>
#include <memory>
#include <vector>

#include "platform/native/api/types.h"

class ClientArea;
class QWidget;

class Window {
 public:
    // `parent` is null for all but controls.
    Window(DWORD style, HWND parent);
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    virtual ~Window() = default;

    HWND handle() const { return handle_; }
    HWND parent() const { return parent_; }
    DWORD style() const { return style_; }

    // Sets the whole style. Visibility and enabling take effect at once.
    void setStyle(DWORD style);

    // The widget of the whole window. This object owns it, and deletes it once Qt has finished with its events.
    virtual QWidget* widget() const = 0;

    // The answer to SendMessageA.
    virtual LRESULT receive(UINT message, WPARAM wParam, LPARAM lParam) = 0;

    // The area that the program draws on. Null except for windows of a registered class.
    virtual ClientArea* clientArea() const { return nullptr; }
    virtual QSize clientSize() const;

 private:
    HWND handle_;
    HWND parent_;
    DWORD style_;
};

Window* addWindow(std::unique_ptr<Window> window);

// Null, with ERROR_INVALID_WINDOW_HANDLE, if no window has this handle.
Window* findWindow(HWND window);

// The handles of all windows, oldest first. A copy, so windows may come and go during a walk over it.
std::vector<HWND> allWindows();
std::vector<HWND> controlsOf(HWND window);

// The program's top-level window, message box or dialog with exactly this title; null if there is none.
HWND findOwnWindow(const char* title);

// Removes a window and its controls without sending messages.
void dropWindow(HWND window);
void dropWindows();

#endif
