// Our own versions of some of Windows' calls. platform/win32.h replaces the names of Windows with these, so that
// callers are the same on every system.
#ifndef PLATFORM_WINDOWS_OWN_CALLS_H
#define PLATFORM_WINDOWS_OWN_CALLS_H

#include <windows.h>

// RegOpenKeyExA in the view of 32-bit programs. The game is one, and a 64-bit program would not see its keys. If
// Windows refuses the access asked for, the key is opened for reading, which is enough to find the game: only
// administrators get full access below HKEY_LOCAL_MACHINE.
LSTATUS openRegistryKey(HKEY key, LPCSTR subKey, DWORD options, REGSAM access, HKEY* result);

// RegisterClassExA. Windows of the class hand the keyboard on to the control that had it last, at first to the first
// one.
ATOM registerClass(const WNDCLASSEXA* windowClass);

// CreateWindowExA. Controls get the user's message font instead of the bitmap font that they start with.
HWND createWindow(DWORD extendedStyle, LPCSTR className, LPCSTR windowName, DWORD style, int x, int y, int width,
                  int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID parameter);

// BeginPaint with the message font selected. EndPaint releases the device context, and the font with it.
// What DrawTextA draws between them is there for screen readers from then on, as static texts that lie before the
// controls to their right, and changes are announced. All lines of the window must be drawn each time.
HDC beginPaint(HWND window, PAINTSTRUCT* paint);
BOOL endPaint(HWND window, const PAINTSTRUCT* paint);
int drawText(HDC dc, LPCSTR text, int length, RECT* rectangle, UINT format);

// TranslateMessage. Tab and Shift+Tab go from control to control, in the order of their creation, and Enter presses the
// button that has the keyboard. The mouse wheel reaches a control only while that has the keyboard. A message that is
// used up becomes WM_NULL.
BOOL translateMessage(MSG* message);

// MessageBoxA. A box without an owner blocks every window of the program, like a box with one: a click on a window
// would start a second operation within the one that asks. Afterwards the window that had the focus has it again, and
// the wait cursor is back if it was shown.
int showMessageBox(HWND owner, LPCSTR text, LPCSTR title, UINT type);

#define BeginPaint beginPaint
#define CreateWindowExA createWindow
#define DrawTextA drawText
#define EndPaint endPaint
#define MessageBoxA showMessageBox
#define RegOpenKeyExA openRegistryKey
#define RegisterClassExA registerClass
#define TranslateMessage translateMessage

#endif
