// What every window of the program does beyond its own procedure.
#include <algorithm>
#include <vector>

#include "platform/windows/keyboard.h"
#include "platform/windows/message_font.h"
#include "platform/windows/open_list.h"
#include "platform/windows/own_calls.h"

#undef RegisterClassExA

namespace {

// The program's classes of windows, each with its procedure.
struct OwnClass {
    ATOM atom;
    WNDPROC procedure;
};
std::vector<OwnClass> classes;

WNDPROC procedureOf(HWND window) {
    const auto atom = static_cast<ATOM>(GetClassLongA(window, GCW_ATOM));
    return std::ranges::find(classes, atom, &OwnClass::atom)->procedure;
}

// The user can't make a window smaller than that, and Windows doesn't.
void limitSize(HWND window, MINMAXINFO& sizes) {
    const auto style = static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE));
    if ((style & WS_THICKFRAME) == 0) return;
    const auto extendedStyle = static_cast<DWORD>(GetWindowLongA(window, GWL_EXSTYLE));
    const SIZE needed = windowSize(toPixels(neededSize.cx), toPixels(neededSize.cy), style, extendedStyle);
    const RECT area = workArea(window);
    sizes.ptMinTrackSize = {std::min(needed.cx, area.right - area.left), std::min(needed.cy, area.bottom - area.top)};
}

// What every window of the program does besides its own procedure, which doesn't notice.
LRESULT CALLBACK commonProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = procedureOf(window)(window, message, wParam, lParam);
    if (message == WM_GETMINMAXINFO) limitSize(window, *reinterpret_cast<MINMAXINFO*>(lParam));
    if (message == WM_SETFOCUS) focusControlOf(window);
    if (message == WM_COMMAND && HIWORD(wParam) == CBN_DROPDOWN && lParam != 0) {
        fitOpenList(reinterpret_cast<HWND>(lParam));
    }
    return result;
}

}  // namespace

ATOM ownRegisterClassExA(const WNDCLASSEXA* windowClass) {
    WNDCLASSEXA common = *windowClass;
    common.lpfnWndProc = commonProcedure;
    const ATOM atom = RegisterClassExA(&common);
    if (atom != 0) classes.push_back({atom, windowClass->lpfnWndProc});
    return atom;
}
