#include "ui/window_parts.h"

WNDCLASSEXA windowClassOf(const char* name, WNDPROC procedure) {
    WNDCLASSEXA windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = GetModuleHandleA(nullptr);
    windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(COLOR_WINDOW + 1));
    windowClass.lpszClassName = name;
    return windowClass;
}

HWND createControl(HWND window, LPCSTR className, LPCSTR text, DWORD style, RECT place, int controlId) {
    return CreateWindowExA(0, className, text, style | WS_CHILD | WS_VISIBLE, place.left, place.top,
                           place.right - place.left, place.bottom - place.top, window,
                           reinterpret_cast<HMENU>(static_cast<UINT_PTR>(controlId)), GetModuleHandleA(nullptr),
                           nullptr);
}

HWND createList(HWND window, RECT place, int controlId) {
    return createControl(window, "ComboBox", "", CBS_DROPDOWNLIST | WS_BORDER | WS_VSCROLL, place, controlId);
}

void addEntry(HWND combo, const char* text) {
    SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
}

void emptyCombo(HWND combo) {
    for (LRESULT left = SendMessageA(combo, CB_GETCOUNT, 0, 0); left > 0; --left) {
        SendMessageA(combo, CB_DELETESTRING, 0, 0);
    }
}

std::string withVisibleAmpersands(const std::string& text) {
    std::string doubled;
    for (const char c : text) {
        doubled.append(c == '&' ? 2 : 1, c);
    }
    return doubled;
}
