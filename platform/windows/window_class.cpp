// What every window of the program does beyond its own procedure.
#include "platform/windows/own_calls.h"

// After windows.h, whose types it uses.
#include <commctrl.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/windows/focus.h"
#include "platform/windows/message_font.h"

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

// Limits how small a resizable window can be made, by the user or by Windows.
void limitSize(HWND window, MINMAXINFO& sizes) {
    const auto style = static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE));
    if ((style & WS_THICKFRAME) == 0) return;
    const auto extendedStyle = static_cast<DWORD>(GetWindowLongA(window, GWL_EXSTYLE));
    const SIZE needed = windowSize(toPixels(neededSize.cx), toPixels(neededSize.cy), style, extendedStyle);
    const RECT area = workArea(window);
    sizes.ptMinTrackSize = {std::min(needed.cx, area.right - area.left), std::min(needed.cy, area.bottom - area.top)};
}

constexpr int mostRows = 30;

LONG widestEntry(HWND combo) {
    HDC const dc = GetDC(combo);
    HGDIOBJ const before = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageA(combo, WM_GETFONT, 0, 0)));
    LONG widest = 0;
    std::string text;
    const LRESULT count = SendMessageA(combo, CB_GETCOUNT, 0, 0);
    for (LRESULT entry = 0; entry < count; ++entry) {
        const auto index = static_cast<WPARAM>(entry);
        text.resize(static_cast<std::size_t>(std::max<LRESULT>(SendMessageA(combo, CB_GETLBTEXTLEN, index, 0), 0)) + 1);
        SendMessageA(combo, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text.data()));
        SIZE size{};
        GetTextExtentPoint32A(dc, text.data(), static_cast<int>(text.size() - 1), &size);
        widest = std::max(widest, size.cx);
    }
    SelectObject(dc, before);
    ReleaseDC(combo, dc);
    return widest;
}

// Makes the list that is about to open as wide as its longest entry, and at most as high as the room below or above the
// box.
void fitOpenList(HWND combo) {
    const RECT area = workArea(combo);
    RECT place{};
    GetWindowRect(combo, &place);
    // A scroll bar, the list's frame and the space before and behind an entry.
    const LONG besides = GetSystemMetrics(SM_CXVSCROLL) + 2 * GetSystemMetrics(SM_CXEDGE) + 8;
    const LONG width = std::clamp(widestEntry(combo) + besides, place.right - place.left,
                                  std::max(area.right - place.left, place.right - place.left));
    SendMessageA(combo, CB_SETDROPPEDWIDTH, static_cast<WPARAM>(width), 0);
    const LONG room = std::max(area.bottom - place.bottom, place.top - area.top) - 2 * GetSystemMetrics(SM_CYEDGE);
    const LRESULT row = std::max<LRESULT>(SendMessageA(combo, CB_GETITEMHEIGHT, 0, 0), 1);
    const LRESULT rows = std::clamp<LRESULT>(room / row, 1, mostRows);
    SendMessageA(combo, CB_SETMINVISIBLE, static_cast<WPARAM>(rows), 0);
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
