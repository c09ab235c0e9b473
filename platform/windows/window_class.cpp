// What every window of the program does beyond its own procedure.
#include <algorithm>
#include <vector>

#include "platform/windows/keyboard.h"
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

// What every window of the program does besides its own procedure, which doesn't notice.
LRESULT CALLBACK commonProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = procedureOf(window)(window, message, wParam, lParam);
    if (message == WM_SETFOCUS) focusControlOf(window);
    return result;
}

}  // namespace

ATOM registerClass(const WNDCLASSEXA* windowClass) {
    WNDCLASSEXA common = *windowClass;
    common.lpfnWndProc = commonProcedure;
    const ATOM atom = RegisterClassExA(&common);
    if (atom != 0) classes.push_back({atom, windowClass->lpfnWndProc});
    return atom;
}
