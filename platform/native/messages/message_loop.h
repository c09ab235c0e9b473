// The loop of a modal box. The program's own message loop calls GetMessageA (platform/native/api/windowing.h).
#ifndef PLATFORM_NATIVE_MESSAGES_MESSAGE_LOOP_H
#define PLATFORM_NATIVE_MESSAGES_MESSAGE_LOOP_H

#include <functional>

class QWidget;

// Shows `box` and runs Qt's events until `open` returns false. The windows are drawn meanwhile; messages in the queue
// wait. While the box is open, the windows show their own cursors instead of SetCursor's. Afterwards the window that
// was active before is active again.
void runModal(QWidget& box, const std::function<bool()>& open);

#endif
