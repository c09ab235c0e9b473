#include "platform/windows/own_calls.h"

#undef MessageBoxA

int showMessageBox(HWND owner, LPCSTR text, LPCSTR title, UINT type) {
    HWND const focus = GetFocus();
    HCURSOR const cursor = SetCursor(LoadCursorA(nullptr, IDC_ARROW));
    const int answer = MessageBoxA(owner, text, title, owner == nullptr ? type | MB_TASKMODAL : type);
    SetCursor(cursor);
    // A box without an owner leaves it open which window comes to the front after it, of this program or another.
    if (owner == nullptr && focus != nullptr) {
        SetForegroundWindow(GetAncestor(focus, GA_ROOT));
        SetFocus(focus);
    }
    return answer;
}
