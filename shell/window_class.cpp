#include "shell/window_class.h"

#include "resources/ids.h"

void registerWindowClass(const char* name, WNDPROC procedure, LPCSTR cursor, LPCSTR menu) {
    const HINSTANCE instance = GetModuleHandleA(nullptr);
    WNDCLASSEXA windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    windowClass.lpfnWndProc = procedure;
    windowClass.hInstance = instance;
    windowClass.hIcon = LoadIconA(instance, MAKEINTRESOURCEA(IDI_MAIN));
    windowClass.hIconSm = LoadIconA(instance, MAKEINTRESOURCEA(IDI_SMALL));
    windowClass.hCursor = LoadCursorA(nullptr, cursor);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(COLOR_WINDOW + 1));
    windowClass.lpszMenuName = menu;
    windowClass.lpszClassName = name;
    RegisterClassExA(&windowClass);
}
