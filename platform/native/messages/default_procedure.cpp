// The default actions of a window.
#include "platform/native/api/gdi.h"
#include "platform/native/api/windowing.h"

LRESULT DefWindowProcA(HWND window, UINT message, WPARAM, LPARAM) {
    if (message == WM_CLOSE) DestroyWindow(window);
    if (message == WM_PAINT) {
        PAINTSTRUCT paint{};
        if (BeginPaint(window, &paint) != nullptr) EndPaint(window, &paint);
    }
    return 0;
}
