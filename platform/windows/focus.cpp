#include "platform/windows/focus.h"

#include "platform/windows/own_calls.h"

#undef TranslateMessage

namespace {

HWND lastFocus = nullptr;

bool takesKeys(HWND control) {
    const auto style = static_cast<DWORD>(GetWindowLongA(control, GWL_STYLE));
    const LRESULT code = SendMessageA(control, WM_GETDLGCODE, 0, 0);
    return (style & (WS_VISIBLE | WS_DISABLED)) == WS_VISIBLE && (code & DLGC_STATIC) == 0;
}

// The control that was created after this one or, going backward, before it; the ends meet.
HWND neighborOf(HWND control, bool backward) {
    HWND const next = GetWindow(control, backward ? GW_HWNDPREV : GW_HWNDNEXT);
    return next != nullptr ? next : GetWindow(control, backward ? GW_HWNDLAST : GW_HWNDFIRST);
}

// The next control that can have the focus: from `control`, or from the ends if that is null. Null if none can.
HWND nextControl(HWND window, HWND control, bool backward) {
    HWND const first = GetWindow(window, GW_CHILD);
    HWND const end = backward ? first : neighborOf(first, true);
    HWND const start = control != nullptr ? control : end;
    HWND next = start;
    do {
        next = neighborOf(next, backward);
        if (next == nullptr || takesKeys(next)) return next;
    } while (next != start);
    return nullptr;
}

void moveFocus(HWND from) {
    HWND const window = GetAncestor(from, GA_ROOT);
    HWND const next = nextControl(window, from == window ? nullptr : from, GetKeyState(VK_SHIFT) < 0);
    if (next == nullptr) return;
    // From the first use of the keyboard on, the focus is to be seen.
    SendMessageA(window, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
    SetFocus(next);
}

// F10, which opens the menu, and Alt+F4, which closes the window.
bool isWindowKey(const MSG& message) {
    const bool isSystemKey = message.message == WM_SYSKEYDOWN || message.message == WM_SYSKEYUP;
    return isSystemKey && (message.wParam == VK_F10 || message.wParam == VK_F4);
}

// Does what the control doesn't do itself. Returns whether that is all that the message is for.
bool actOn(const MSG& message) {
    if (message.message == WM_KEYDOWN && message.wParam == VK_TAB) {
        moveFocus(message.hwnd);
        return true;
    }
    // A wheel that is turned over a control without the focus was meant for something else. A combo box would change
    // its pick. Its open list, which is no control of the window, never has the focus.
    const bool isControl = GetAncestor(message.hwnd, GA_ROOT) != message.hwnd;
    return message.message == WM_MOUSEWHEEL && isControl && message.hwnd != GetFocus();
}

}  // namespace

void focusControlOf(HWND window) {
    const bool canHaveItAgain = GetParent(lastFocus) == window && takesKeys(lastFocus);
    HWND const control = canHaveItAgain ? lastFocus : nextControl(window, nullptr, false);
    if (control != nullptr) SetFocus(control);
}

BOOL ownTranslateMessage(MSG* message) {
    // A message box may take the focus while the message is dispatched.
    if (HWND const focus = GetFocus(); focus != nullptr && GetAncestor(focus, GA_ROOT) != focus) lastFocus = focus;
    // Wine's combo boxes would keep them to themselves.
    if (isWindowKey(*message)) message->hwnd = GetAncestor(message->hwnd, GA_ROOT);
    if (!actOn(*message)) return TranslateMessage(message);
    message->message = WM_NULL;
    return TRUE;
}
