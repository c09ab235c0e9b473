// The "ComboBox" class: a list that drops down, without an edit field.
#ifndef PLATFORM_NATIVE_WINDOWING_COMBO_BOX_H
#define PLATFORM_NATIVE_WINDOWING_COMBO_BOX_H

#include "platform/native/windowing/control.h"

class QComboBox;

class ComboBox : public Control {
 public:
    ComboBox(DWORD style, HWND parent, int id, QWidget* area);

    LRESULT receive(UINT message, WPARAM wParam, LPARAM lParam) override;

    // The rectangle's height is that of the box with its list open.
    void place(const QRect& rectangle) override;

 private:
    QComboBox& box() const;
    LRESULT addString(const char* text);
    LRESULT deleteString(WPARAM index);
};

#endif
