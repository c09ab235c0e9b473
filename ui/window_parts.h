// What the windows of all programs are made of.
#ifndef UI_WINDOW_PARTS_H
#define UI_WINDOW_PARTS_H

#include <string>

#include "platform/win32.h"

// A class to be registered: the arrow as its cursor, the background of the desktop's windows, no icon and no menu.
WNDCLASSEXA windowClassOf(const char* name, WNDPROC procedure);

// A visible child of the window. `place` is in its client area, and includes the open list of a combo box.
HWND createControl(HWND window, LPCSTR className, LPCSTR text, DWORD style, RECT place, int controlId);
HWND createList(HWND window, RECT place, int controlId);

void addEntry(HWND combo, const char* text);
void emptyCombo(HWND combo);

// In a text that a control or DrawTextA shows, a single "&" underlines the next letter. The result shows each "&".
std::string withVisibleAmpersands(const std::string& text);

#endif
