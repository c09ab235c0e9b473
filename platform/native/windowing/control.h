// The base of all controls, a widget in a parent window that is notified of the user's actions; and the push button,
// which needs little more.
#ifndef PLATFORM_NATIVE_WINDOWING_CONTROL_H
#define PLATFORM_NATIVE_WINDOWING_CONTROL_H

#include <QPointer>
#include <QRect>
#include <QWidget>

#include "platform/native/windowing/window.h"

class QPushButton;

class Control : public Window {
 public:
    Control(DWORD style, HWND parent, QWidget* widget);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    ~Control() override;

    QWidget* widget() const override { return widget_; }
    LRESULT receive(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Places the control in its parent's client area, visible and enabled according to its style.
    virtual void place(const QRect& rectangle);

 private:
    QPointer<QWidget> widget_;
};

// The "Button" class: a push button.
class Button : public Control {
 public:
    // The letter after "&" in `text` is underlined and presses the button.
    Button(DWORD style, HWND parent, int id, LPCSTR text, QWidget* area);

    QPushButton& button() const;
};

// Sends a control's WM_COMMAND to its parent. Takes handles, because the control itself may be gone by now.
void notifyParent(HWND parent, int id, int code, HWND control);

#endif
