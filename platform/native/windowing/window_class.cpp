#include "platform/native/windowing/window_class.h"

#include <deque>

#include "platform/letter_case.h"
#include "platform/native/api/system.h"

namespace {

// Only ever grows at its end, so pointers to classes stay valid.
std::deque<WindowClass> classes;

constexpr ATOM firstAtom = 0xC000;

const WindowClass* find(LPCSTR name) {
    for (const WindowClass& windowClass : classes) {
        if (equalInAnyCase(windowClass.name, name)) return &windowClass;
    }
    return nullptr;
}

}  // namespace

const WindowClass* findWindowClass(LPCSTR name) {
    const WindowClass* const found = name == nullptr ? nullptr : find(name);
    if (found == nullptr) SetLastError(ERROR_CANNOT_FIND_WND_CLASS);
    return found;
}

ATOM RegisterClassExA(const WNDCLASSEXA* windowClass) {
    if (windowClass == nullptr || windowClass->cbSize != sizeof(WNDCLASSEXA) || windowClass->lpfnWndProc == nullptr ||
        windowClass->lpszClassName == nullptr) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    if (find(windowClass->lpszClassName) != nullptr) {
        SetLastError(ERROR_CLASS_ALREADY_EXISTS);
        return 0;
    }
    classes.push_back({windowClass->lpszClassName, windowClass->style, windowClass->lpfnWndProc, windowClass->hIcon,
                       windowClass->hIconSm, windowClass->hCursor, windowClass->hbrBackground,
                       windowClass->lpszMenuName});
    return static_cast<ATOM>(firstAtom + classes.size() - 1);
}
