// The cursor over the program's windows.
#ifndef PLATFORM_NATIVE_SCREEN_CURSOR_H
#define PLATFORM_NATIVE_SCREEN_CURSOR_H

#include "platform/native/api/types.h"

class QWidget;

// Sets the cursor of a window's class, which its client area shows while SetCursor has set no other. Null leaves the
// arrow.
void setClassCursor(QWidget& widget, HCURSOR cursor);

// While it exists, windows show their own cursors; afterwards SetCursor's is back. For boxes, which are not part of the
// long work that they interrupt.
class CursorPause {
 public:
    CursorPause();
    CursorPause(const CursorPause&) = delete;
    CursorPause& operator=(const CursorPause&) = delete;
    ~CursorPause();

 private:
    HCURSOR paused_;
};

// Call before the screen closes.
void dropOverrideCursor();

#endif
