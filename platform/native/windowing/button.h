// The "Button" class: a push button.
#ifndef PLATFORM_NATIVE_WINDOWING_BUTTON_H
#define PLATFORM_NATIVE_WINDOWING_BUTTON_H

#include "platform/native/windowing/control.h"

class QPushButton;

class Button : public Control {
 public:
    // The letter after "&" in `text` is underlined and presses the button.
    Button(DWORD style, HWND parent, int id, LPCSTR text, QWidget* area);

    QPushButton& button() const;
};

#endif
