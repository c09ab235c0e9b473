// Five of Windows' calls in a version of this program's own. The names of Windows stand for them wherever
// platform/win32.h is included, so that callers stay the same on every system.
#ifndef PLATFORM_WINDOWS_OWN_CALLS_H
#define PLATFORM_WINDOWS_OWN_CALLS_H

#include <windows.h>

// RegOpenKeyExA on the keys of 32-bit programs, whatever this program is: the game is one, and a 64-bit program would
// look past its keys. Where Windows refuses the access asked for, the key is opened for reading: a user without an
// administrator's rights never gets all access below HKEY_LOCAL_MACHINE, and reading is enough to find the game.
LSTATUS openRegistryKey(HKEY key, LPCSTR subKey, DWORD options, REGSAM access, HKEY* result);

// CreateWindowExA; controls get the font that the user has chosen for message boxes, in place of the bitmap font of
// Windows 3 that they start with.
HWND createWindow(DWORD extendedStyle, LPCSTR className, LPCSTR windowName, DWORD style, int x, int y, int width,
                  int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID parameter);

// BeginPaint with that font chosen. The device context isn't a class's or window's own, so EndPaint chooses it away.
HDC beginPaint(HWND window, PAINTSTRUCT* paint);

// SetWindowLongA; a control that gets disabled by it hands the keyboard on to its parent. Windows itself leaves the
// keyboard with the disabled control, which takes no command: Alt and a letter would open no menu until the next click.
LONG setWindowLong(HWND window, int index, LONG value);

// MessageBoxA; a box without an owner keeps the user from every window of the program until it is answered, not only a
// box with one: a click there would start a second operation in the middle of the one that asks. Afterwards the window
// that had the keyboard has it again, and the cursor that waited waits again.
int showMessageBox(HWND owner, LPCSTR text, LPCSTR title, UINT type);

#define MessageBoxA showMessageBox
#define RegOpenKeyExA openRegistryKey
#define CreateWindowExA createWindow
#define BeginPaint beginPaint
#define SetWindowLongA setWindowLong

#endif
