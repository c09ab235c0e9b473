// Apart from the other calls, so that a program that only shows boxes needs nothing to draw with.
#include "platform/windows/own_calls.h"

// After windows.h, whose types it uses.
#include <commctrl.h>

#undef MessageBoxA

int ownMessageBoxA(HWND owner, LPCSTR text, LPCSTR title, UINT type) {
    InitCommonControls();  // for XP, as with a window
    HWND const focus = GetFocus();
    HCURSOR const cursor = SetCursor(LoadCursorA(nullptr, IDC_ARROW));
    const int answer = MessageBoxA(owner, text, title, owner == nullptr ? type | MB_TASKMODAL : type);
    SetCursor(cursor);
    // After a box without an owner, Windows may bring a window of another program to the front.
    if (owner == nullptr && focus != nullptr) {
        SetForegroundWindow(GetAncestor(focus, GA_ROOT));
        SetFocus(focus);
    }
    return answer;
}
