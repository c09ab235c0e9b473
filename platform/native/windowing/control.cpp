#include "platform/native/windowing/control.h"

#include <QPushButton>

#include "platform/native/api/controls.h"
#include "platform/native/api/windowing.h"
#include "platform/native/base/text1252.h"

Control::Control(DWORD style, HWND parent, QWidget* widget) : Window(style, parent), widget_(widget) {}

Control::~Control() {
    if (widget_ == nullptr) return;
    widget_->hide();
    widget_->deleteLater();
}

LRESULT Control::receive(UINT, WPARAM, LPARAM) {
    return 0;
}

void Control::place(const QRect& rectangle) {
    widget_->setGeometry(rectangle);
    setStyle(style());
}

Button::Button(DWORD style, HWND parent, int id, LPCSTR text, QWidget* area)
    : Control(style, parent, new QPushButton(qtText(text), area)) {
    button().setAutoDefault(false);
    QObject::connect(&button(), &QPushButton::clicked, &button(),
                     [parent, id, control = handle()] { notifyParent(parent, id, BN_CLICKED, control); });
}

QPushButton& Button::button() const {
    return static_cast<QPushButton&>(*widget());
}

void notifyParent(HWND parent, int id, int code, HWND control) {
    SendMessageA(parent, WM_COMMAND, MAKEWPARAM(static_cast<ULONG_PTR>(id), static_cast<ULONG_PTR>(code)),
                 reinterpret_cast<LPARAM>(control));
}
