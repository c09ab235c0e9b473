// Drawing in a window, which screen readers can follow.
#include "platform/windows/message_font.h"
#include "platform/windows/own_calls.h"
#include "platform/windows/spoken_lines.h"

#undef BeginPaint
#undef DrawTextA
#undef EndPaint

HDC beginPaint(HWND window, PAINTSTRUCT* paint) {
    HDC const dc = BeginPaint(window, paint);
    if (dc == nullptr) return nullptr;
    if (messageFont() != nullptr) SelectObject(dc, messageFont());
    beginLines(window);
    return dc;
}

BOOL endPaint(HWND window, const PAINTSTRUCT* paint) {
    const BOOL ended = EndPaint(window, paint);
    endLines(window);
    return ended;
}

int drawText(HDC dc, LPCSTR text, int length, RECT* rectangle, UINT format) {
    if (HWND const window = WindowFromDC(dc); window != nullptr) addLine(window, dc, text, length, *rectangle, format);
    return DrawTextA(dc, text, length, rectangle, format);
}
