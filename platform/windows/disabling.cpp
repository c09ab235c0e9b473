#include "platform/windows/own_calls.h"

#undef SetWindowLongA

LONG setWindowLong(HWND window, int index, LONG value) {
    const LONG before = SetWindowLongA(window, index, value);
    if (index == GWL_STYLE && (value & WS_DISABLED) != 0 && GetFocus() == window) SetFocus(GetParent(window));
    return before;
}
