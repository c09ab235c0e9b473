// What a window handle stands for: a top-level window of a class, a control, a message box or a dialog.
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
    // `parent` is null but for controls.
    Window(DWORD style, HWND parent);
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    virtual ~Window() = default;

    HWND handle() const { return handle_; }
    HWND parent() const { return parent_; }
    DWORD style() const { return style_; }

    // Takes the whole style; what it says of visible and disabled takes effect at once.
    void setStyle(DWORD style);
    void noteVisible(bool visible);

    // The whole window. It belongs to this object, which deletes it once no event of it is under way any more.
    virtual QWidget* widget() const = 0;

    // What SendMessageA does with it.
    virtual LRESULT receive(UINT message, WPARAM wParam, LPARAM lParam) = 0;

    // What a program may draw on; null for all but windows of a registered class.
    virtual ClientArea* clientArea() const { return nullptr; }
    virtual QSize clientSize() const;

 private:
    HWND handle_;
    HWND parent_;
    DWORD style_;
};

Window* addWindow(std::unique_ptr<Window> window);

// Null, and ERROR_INVALID_WINDOW_HANDLE, if the handle is nobody's (any more).
Window* findWindow(HWND window);

// A copy of what exists, oldest first: a walk over it survives windows that come and go on the way.
std::vector<HWND> allWindows();
std::vector<HWND> controlsOf(HWND window);

// The window of ours that `widget` is the whole of; null for every other widget.
HWND windowOfWidget(const QWidget* widget);

// This program's own top-level window, message box or dialog of that whole title; null if there is none.
HWND findOwnWindow(const char* title);

// Removes a window with its controls; nothing is sent.
void dropWindow(HWND window);
void dropWindows();

#endif
