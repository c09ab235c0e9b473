// A window of a registered class: its class's menu bar, and below it the client area with the controls.
#ifndef PLATFORM_NATIVE_WINDOWING_TOP_LEVEL_WINDOW_H
#define PLATFORM_NATIVE_WINDOWING_TOP_LEVEL_WINDOW_H

#include <QPointer>

#include "platform/native/windowing/window.h"
#include "platform/native/windowing/window_class.h"

// In units (scale.h); `x` and `width` may be CW_USEDEFAULT.
struct Placement {
    int x, y, width, height;
};

class TopLevelWindow : public Window {
 public:
    // Shows nothing and sends nothing yet.
    TopLevelWindow(const WindowClass& windowClass, LPCSTR title, DWORD style, const Placement& placement);
    TopLevelWindow(const TopLevelWindow&) = delete;
    TopLevelWindow& operator=(const TopLevelWindow&) = delete;
    ~TopLevelWindow() override;

    QWidget* widget() const override;
    ClientArea* clientArea() const override { return client_; }
    QSize clientSize() const override;
    LRESULT receive(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
    void place(const Placement& placement);

    WNDPROC procedure_;
    QPointer<QWidget> frame_;
    ClientArea* client_;  // in the frame
};

#endif
