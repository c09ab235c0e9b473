// The cursor over the program's windows.
#ifndef PLATFORM_NATIVE_SCREEN_CURSOR_H
#define PLATFORM_NATIVE_SCREEN_CURSOR_H

#include "platform/native/api/types.h"

class QWidget;

// The cursor of a window's class, which its client area shows while SetCursor names no other. Null leaves the arrow.
void setClassCursor(QWidget& widget, HCURSOR cursor);

// While it lives, the windows show their own cursors; afterwards what SetCursor was last given. A box that opens during
// long work is no part of it.
class CursorPause {
 public:
    CursorPause();
    CursorPause(const CursorPause&) = delete;
    CursorPause& operator=(const CursorPause&) = delete;
    ~CursorPause();

 private:
    HCURSOR paused_;
};

// Before the screen closes.
void dropOverrideCursor();

#endif
