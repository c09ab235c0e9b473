#include "platform/native/windowing/control.h"

#include "platform/native/api/windowing.h"

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

void notifyParent(HWND parent, int id, int code, HWND control) {
    SendMessageA(parent, WM_COMMAND, MAKEWPARAM(static_cast<ULONG_PTR>(id), static_cast<ULONG_PTR>(code)),
                 reinterpret_cast<LPARAM>(control));
}
