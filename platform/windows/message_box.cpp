#include "platform/windows/own_calls.h"

#undef MessageBoxA

int showMessageBox(HWND owner, LPCSTR text, LPCSTR title, UINT type) {
    HWND const focus = GetFocus();
    HCURSOR const cursor = SetCursor(LoadCursorA(nullptr, IDC_ARROW));
    const int answer = MessageBoxA(owner, text, title, owner == nullptr ? type | MB_TASKMODAL : type);
    SetCursor(cursor);
    // While the box goes, all windows are still disabled, so Windows hands the keyboard to another program's.
    if (owner == nullptr && focus != nullptr) SetFocus(focus);
    return answer;
}
