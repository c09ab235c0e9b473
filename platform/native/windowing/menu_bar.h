// The menu bar of a window, from a menu of the resources.
#ifndef PLATFORM_NATIVE_WINDOWING_MENU_BAR_H
#define PLATFORM_NATIVE_WINDOWING_MENU_BAR_H

#include "platform/native/api/types.h"

class QMenuBar;
class QWidget;

// The menu's items post WM_COMMAND with their id to `window`. F10 opens the first menu. Null if `menuName` is null or
// the resources have no valid menu of that id.
QMenuBar* createMenuBar(LPCSTR menuName, HWND window, QWidget* frame);

#endif
