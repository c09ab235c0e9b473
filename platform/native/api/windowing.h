// Windows and their messages, over Qt Widgets. Coordinates are in pixels of a screen of 96 dots per inch, whatever the
// real screen's scale; texts are Windows-1252.
//
// A window procedure receives WM_CREATE inside CreateWindowExA, WM_PAINT when a part of its client area must be drawn,
// WM_COMMAND from its controls, its menu and its accelerators, WM_CLOSE when the user asks it to close and WM_DESTROY
// while it is destroyed, in Windows' order. Controls and accelerators send theirs; the menu and the close button post
// theirs, for the message loop to deliver. Keys pass through the loop too (key_messages.h). Left out: every other
// message, such as those of mouse, size and focus, which Qt handles by itself.
//
// Without a display no window can be created; everything else here then refuses or does nothing.
#ifndef PLATFORM_NATIVE_API_WINDOWING_H
#define PLATFORM_NATIVE_API_WINDOWING_H

#include "platform/native/api/types.h"

constexpr UINT WM_CREATE = 0x0001;
constexpr UINT WM_DESTROY = 0x0002;
constexpr UINT WM_PAINT = 0x000F;
constexpr UINT WM_CLOSE = 0x0010;
constexpr UINT WM_QUIT = 0x0012;
constexpr UINT WM_KEYDOWN = 0x0100;
constexpr UINT WM_KEYUP = 0x0101;
constexpr UINT WM_CHAR = 0x0102;
constexpr UINT WM_SYSKEYDOWN = 0x0104;
constexpr UINT WM_SYSKEYUP = 0x0105;
constexpr UINT WM_SYSCHAR = 0x0106;
constexpr UINT WM_INITDIALOG = 0x0110;
constexpr UINT WM_COMMAND = 0x0111;

constexpr DWORD WS_CHILD = 0x40000000;
constexpr DWORD WS_VISIBLE = 0x10000000;
constexpr DWORD WS_DISABLED = 0x08000000;
constexpr DWORD WS_BORDER = 0x00800000;
constexpr DWORD WS_DLGFRAME = 0x00400000;
constexpr DWORD WS_CAPTION = 0x00C00000;
constexpr DWORD WS_VSCROLL = 0x00200000;
constexpr DWORD WS_SYSMENU = 0x00080000;
constexpr DWORD WS_MINIMIZEBOX = 0x00020000;
constexpr DWORD WS_MAXIMIZEBOX = 0x00010000;
constexpr DWORD WS_OVERLAPPEDWINDOW = 0x00CF0000;

constexpr UINT CS_VREDRAW = 0x0001;
constexpr UINT CS_HREDRAW = 0x0002;

constexpr int CW_USEDEFAULT = static_cast<int>(0x80000000U);
constexpr int SW_HIDE = 0;
constexpr int SW_SHOWNORMAL = 1;
constexpr int SW_SHOW = 5;
constexpr int GWL_STYLE = -16;

constexpr int COLOR_WINDOW = 5;

struct MSG {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
};

struct WNDCLASSEXA {
    UINT cbSize;
    UINT style;
    WNDPROC lpfnWndProc;
    int cbClsExtra;
    int cbWndExtra;
    HINSTANCE hInstance;
    HICON hIcon;
    HCURSOR hCursor;
    HBRUSH hbrBackground;  // a system colour's number plus one
    LPCSTR lpszMenuName;
    LPCSTR lpszClassName;
    HICON hIconSm;
};

// Registers a class under its name (compared without regard to case). 0 with ERROR_CLASS_ALREADY_EXISTS for a second
// one of that name, with ERROR_INVALID_PARAMETER for a wrong size or no procedure.
ATOM RegisterClassExA(const WNDCLASSEXA* windowClass);

// Creates a top-level window of a registered class, or with WS_CHILD a control ("ComboBox", "Button", any case) in
// `parent`, whose id stands in place of `menu`. The menu of a top-level window comes from its class. Position and size
// are those of the whole window without what a window manager adds, of a combo box with its list opened; CW_USEDEFAULT
// leaves them to the system. A window without WS_CAPTION stands exactly there, without a frame, in front of all. Sends
// WM_CREATE before it returns, when the client rectangle is known already; an answer of -1 destroys the window again.
// Null on failure: no such class, no such parent, no display.
HWND CreateWindowExA(DWORD extendedStyle, LPCSTR className, LPCSTR windowName, DWORD style, int x, int y, int width,
                     int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID parameter);

#define CreateWindowA(className, windowName, style, x, y, width, height, parent, menu, instance, parameter) \
    CreateWindowExA(0, className, windowName, style, x, y, width, height, parent, menu, instance, parameter)

// Shows or hides a window; when it returns, a shown window stands on the screen. Returns whether it was visible before.
BOOL ShowWindow(HWND window, int showCommand);

// Sends WM_PAINT at once if a part of the window waits to be drawn.
BOOL UpdateWindow(HWND window);

// Adds a rectangle of the client area (null: all of it) to the part that waits to be drawn; with `erase`, its
// background is filled with the class's before that. The drawing comes with UpdateWindow or once the message queue is
// empty.
BOOL InvalidateRect(HWND window, const RECT* rectangle, BOOL erase);

// Sends WM_DESTROY and then removes the window with its controls; the handle is invalid afterwards.
BOOL DestroyWindow(HWND window);
BOOL IsWindow(HWND window);

// The client area: 0, 0, width, height, without frame and menu.
BOOL GetClientRect(HWND window, RECT* rectangle);

// With GWL_STYLE: writes the whole style and returns the old one (0 on failure). WS_DISABLED and WS_VISIBLE take effect
// at once. Left out: every other index.
LONG SetWindowLongA(HWND window, int index, LONG value);

// Calls the window's procedure, or has a control obey (controls.h), and returns its result.
LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// What a window does by itself: WM_CLOSE destroys it, WM_PAINT draws the background. Returns 0.
LRESULT DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Finds a top-level window by its whole title, of any class and any program; null if there is none or no display.
// Left out: search by class (`className` must be null) and of any title (`windowName` must not be null).
HWND FindWindowA(LPCSTR className, LPCSTR windowName);

// Waits for the next message. 0 once PostQuitMessage was called and no other message waits (`wParam` is then its code);
// without a display, where no message can come, 0 at once. Left out: the choice of messages, which must be 0.
BOOL GetMessageA(MSG* message, HWND window, UINT first, UINT last);

// Follows a key message with its character message, if it stands for one.
BOOL TranslateMessage(const MSG* message);
LRESULT DispatchMessageA(const MSG* message);

// Ends the message loop with `exitCode`. May be called before there is a loop.
void PostQuitMessage(int exitCode);

// Accelerators: a table of the resources. TranslateAcceleratorA sends WM_COMMAND with the id in the low word and 1 in
// the high word and returns nonzero if `message` is a key of the table. Left out: accelerators of virtual keys.
HACCEL LoadAcceleratorsA(HINSTANCE instance, LPCSTR tableName);
int TranslateAcceleratorA(HWND window, HACCEL table, MSG* message);

#endif
