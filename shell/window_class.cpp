#include "shell/window_class.h"

#include "resources/ids.h"
#include "ui/window_parts.h"

void registerWindowClass(const char* name, WNDPROC procedure, LPCSTR cursor, LPCSTR menu) {
    const HINSTANCE instance = GetModuleHandleA(nullptr);
    WNDCLASSEXA windowClass = windowClassOf(name, procedure);
    windowClass.hIcon = LoadIconA(instance, MAKEINTRESOURCEA(IDI_MAIN));
    windowClass.hIconSm = LoadIconA(instance, MAKEINTRESOURCEA(IDI_SMALL));
    windowClass.hCursor = LoadCursorA(nullptr, cursor);
    windowClass.lpszMenuName = menu;
    RegisterClassExA(&windowClass);
}
