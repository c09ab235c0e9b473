// The list of a combo box that is about to open.
#ifndef PLATFORM_WINDOWS_OPEN_LIST_H
#define PLATFORM_WINDOWS_OPEN_LIST_H

#include <windows.h>

// Makes the list as wide as its longest entry, and at most as high as the room below or above the box.
void fitOpenList(HWND combo);

#endif
