// The calls that take or give places in a window, with the program's units instead of pixels.
#include "platform/windows/message_font.h"
#include "platform/windows/own_calls.h"
#include "platform/windows/spoken_lines.h"

#undef BeginPaint
#undef BitBlt
#undef DrawTextA
#undef EndPaint
#undef GetClientRect
#undef InvalidateRect

HDC ownBeginPaint(HWND window, PAINTSTRUCT* paint) {
    HDC const dc = BeginPaint(window, paint);
    if (dc == nullptr) return nullptr;
    if (messageFont() != nullptr) SelectObject(dc, messageFont());
    // A device context starts with black letters on white, whatever the window's color.
    SetTextColor(dc, GetSysColor(COLOR_WINDOWTEXT));
    SetBkMode(dc, TRANSPARENT);
    paint->rcPaint = toUnits(paint->rcPaint);
    beginLines(window);
    return dc;
}

BOOL ownEndPaint(HWND window, const PAINTSTRUCT* paint) {
    const BOOL ended = EndPaint(window, paint);
    endLines(window);
    return ended;
}

BOOL ownGetClientRect(HWND window, RECT* rectangle) {
    if (GetClientRect(window, rectangle) == FALSE) return FALSE;
    *rectangle = toUnits(*rectangle);
    return TRUE;
}

BOOL ownInvalidateRect(HWND window, const RECT* rectangle, BOOL erase) {
    if (rectangle == nullptr) return InvalidateRect(window, nullptr, erase);
    const RECT place = toPixels(*rectangle);
    return InvalidateRect(window, &place, erase);
}

int ownDrawTextA(HDC dc, LPCSTR text, int length, RECT* rectangle, UINT format) {
    RECT place = toPixels(*rectangle);
    if (HWND const window = WindowFromDC(dc); window != nullptr) addLine(window, dc, text, length, place, format);
    const LONG height = DrawTextA(dc, text, length, &place, format);
    return toUnits(RECT{0, 0, 0, height}).bottom;
}

BOOL ownBitBlt(HDC target, int x, int y, int width, int height, HDC source, int sourceX, int sourceY, DWORD operation) {
    if (GetObjectType(target) == OBJ_MEMDC) {
        return BitBlt(target, x, y, width, height, source, sourceX, sourceY, operation);
    }
    const RECT place = toPixels({x, y, x + width, y + height});
    SetStretchBltMode(target, HALFTONE);
    SetBrushOrgEx(target, 0, 0, nullptr);  // which that mode requires
    return StretchBlt(target, place.left, place.top, place.right - place.left, place.bottom - place.top, source,
                      sourceX, sourceY, width, height, operation);
}
