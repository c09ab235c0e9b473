// The user's message font, and the scale of the windows that follows from it. The program lays its windows out in
// units, which are pixels for the font that Windows starts with. A user who chose a larger font gets larger windows,
// so that every text keeps its room.
#ifndef PLATFORM_WINDOWS_MESSAGE_FONT_H
#define PLATFORM_WINDOWS_MESSAGE_FONT_H

#include <windows.h>

// The client area that holds the controls and the lines of the main window, in units. A scale at which it leaves the
// screen is too large.
constexpr SIZE neededSize{480, 350};

// Asks for the user's choice and the size of the screen anew. Windows that are there already keep their look, so this
// is for a program that is about to open a window of its own.
void updateMessageFont();

// Null, which selects the system's bitmap font, if it can't be created or before the first update. Lives until the
// program ends.
HFONT messageFont();

// A length in pixels, rounded to the nearest one.
int toPixels(int units);
RECT toPixels(const RECT& units);

// The smallest rectangle of whole units that holds this one of the client area.
RECT toUnits(const RECT& pixels);

// The part of the window's screen, or of the main one for null, that no task bar covers.
RECT workArea(HWND window);

// The size of a resizable window with a menu that has this client area.
SIZE windowSize(int clientWidth, int clientHeight, DWORD style, DWORD extendedStyle);

#endif
