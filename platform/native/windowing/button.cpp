#include "platform/native/windowing/button.h"

#include <QPushButton>

#include "platform/native/api/controls.h"
#include "platform/native/base/qt_text.h"

Button::Button(DWORD style, HWND parent, int id, LPCSTR text, QWidget* area)
    : Control(style, parent, new QPushButton(qtText(text), area)) {
    button().setAutoDefault(false);
    QObject::connect(&button(), &QPushButton::clicked, &button(),
                     [parent, id, control = handle()] { notifyParent(parent, id, BN_CLICKED, control); });
}

QPushButton& Button::button() const {
    return static_cast<QPushButton&>(*widget());
}
