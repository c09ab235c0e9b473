#include "platform/windows/open_list.h"

// After windows.h, whose types it uses.
#include <commctrl.h>

#include <algorithm>
#include <string>

#include "platform/windows/message_font.h"

namespace {

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

}  // namespace

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
