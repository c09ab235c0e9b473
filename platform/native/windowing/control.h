// What the controls share: a parent that hears of them, and an id
// in what they tell it.
#ifndef PLATFORM_NATIVE_WINDOWING_CONTROL_H
#define PLATFORM_NATIVE_WINDOWING_CONTROL_H

#include <QPointer>
#include <QRect>
#include <QWidget>

#include "platform/native/windowing/window.h"

class Control : public Window {
 public:
    Control(DWORD style, HWND parent, QWidget* widget);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    ~Control() override;

    QWidget* widget() const override { return widget_; }
    LRESULT receive(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Puts it into its parent's client area, visible and enabled as its style says.
    virtual void place(const QRect& rectangle);

 private:
    QPointer<QWidget> widget_;
};

// Sends a control's WM_COMMAND to its parent. By its handle: the control itself may be gone meanwhile.
void notifyParent(HWND parent, int id, int code, HWND control);

#endif
