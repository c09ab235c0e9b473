#include "platform/windows/message_font.h"
#include "platform/windows/own_calls.h"

#undef BeginPaint

HDC beginPaint(HWND window, PAINTSTRUCT* paint) {
    HDC const dc = BeginPaint(window, paint);
    if (dc != nullptr && messageFont() != nullptr) SelectObject(dc, messageFont());
    return dc;
}
