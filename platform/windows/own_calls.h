// Our own versions of some of Windows' calls. platform/win32.h replaces the names of Windows with these, so that
// callers are the same on every system.
//
// Places and sizes in windows are in units. A unit is one pixel at the default message font. With a larger font it
// grows in proportion, up to what fits the screen.
#ifndef PLATFORM_WINDOWS_OWN_CALLS_H
#define PLATFORM_WINDOWS_OWN_CALLS_H

#include <windows.h>

// RegOpenKeyExA in the view of 32-bit programs. The game is one, and a 64-bit program would not see its keys. If
// Windows refuses the access asked for, the key is opened for reading, which is enough to find the game: only
// administrators get full access below HKEY_LOCAL_MACHINE.
LSTATUS ownRegOpenKeyExA(HKEY key, LPCSTR subKey, DWORD options, REGSAM access, HKEY* result);

// RegisterClassExA. When a window of the class is activated, focus returns to the control that last had it, initially
// the first. A resizable window can't be made too small for the controls of the main window. The lists of combo boxes
// open as wide as their longest entry.
ATOM ownRegisterClassExA(const WNDCLASSEXA* windowClass);

// CreateWindowExA, in units. Controls get the user's message font instead of the bitmap font that they start with.
// Place and size are CW_USEDEFAULT together or not at all; if they are, the window is moved onto the screen as a whole.
HWND ownCreateWindowExA(DWORD extendedStyle, LPCSTR className, LPCSTR windowName, DWORD style, int x, int y, int width,
                        int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID parameter);

// GetClientRect and InvalidateRect, in units.
BOOL ownGetClientRect(HWND window, RECT* rectangle);
BOOL ownInvalidateRect(HWND window, const RECT* rectangle, BOOL erase);

// BeginPaint, in units and with the message font selected. Texts have the user's color for windows' texts, and what is
// below them shows between the letters. EndPaint releases the device context, and all this with it. What DrawTextA
// draws between them is there for screen readers from then on, as static texts that lie before the controls to their
// right, and changes are announced. All lines of the window must be drawn each time.
HDC ownBeginPaint(HWND window, PAINTSTRUCT* paint);
BOOL ownEndPaint(HWND window, const PAINTSTRUCT* paint);

// DrawTextA with a place in units that stays unchanged. The result is in whole units, rounded up.
int ownDrawTextA(HDC dc, LPCSTR text, int length, RECT* rectangle, UINT format);

// BitBlt. If the target is no memory, its place is in units, to which the picture is stretched.
BOOL ownBitBlt(HDC target, int x, int y, int width, int height, HDC source, int sourceX, int sourceY, DWORD operation);

// TranslateMessage. Tab and Shift+Tab go from control to control, in the order of their creation. F10 and Alt+F4 go to
// the window, which opens its menu or closes. The mouse wheel reaches a control only while that has the focus. A
// message that is used up becomes WM_NULL.
BOOL ownTranslateMessage(MSG* message);

// MessageBoxA. A box without an owner blocks every window of the program, like a box with one: a click on a window
// would start a second operation within the one that asks. Afterwards the window that had the focus has it again, and
// the wait cursor is back if it was shown.
int ownMessageBoxA(HWND owner, LPCSTR text, LPCSTR title, UINT type);

#define BeginPaint ownBeginPaint
#define BitBlt ownBitBlt
#define CreateWindowExA ownCreateWindowExA
#define DrawTextA ownDrawTextA
#define EndPaint ownEndPaint
#define GetClientRect ownGetClientRect
#define InvalidateRect ownInvalidateRect
#define MessageBoxA ownMessageBoxA
#define RegOpenKeyExA ownRegOpenKeyExA
#define RegisterClassExA ownRegisterClassExA
#define TranslateMessage ownTranslateMessage

#endif
