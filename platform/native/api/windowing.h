// Windows and their messages, over Qt Widgets. Coordinates are in units: pixels of a screen of 96 dots per inch,
// whatever the real screen's scale, and more with a font larger than usual. Texts are Windows-1252.
//
// A window procedure receives, in Windows' order: WM_CREATE inside CreateWindowExA, WM_PAINT when part of its client
// area must be drawn, WM_COMMAND from its controls, menu and accelerators, WM_CLOSE when the user asks to close it, and
// WM_DESTROY while it is destroyed. Controls and accelerators send their messages; the menu and the close button post
// theirs to the message loop. Keys pass through the loop too (key_messages.h). Left out: every other message, such as
// those of mouse, size and focus, which Qt handles.
//
// Without a display, no window can be created and everything else here fails or does nothing.
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
    HBRUSH hbrBackground;  // a system color's number plus one
    LPCSTR lpszMenuName;
    LPCSTR lpszClassName;
    HICON hIconSm;
};

// Registers a class under its name, which is compared without regard to case. Returns 0 with ERROR_CLASS_ALREADY_EXISTS
// if the name is taken, with ERROR_INVALID_PARAMETER for a wrong size or a missing procedure.
ATOM RegisterClassExA(const WNDCLASSEXA* windowClass);

// Creates a top-level window of a registered class or, with WS_CHILD, a control ("ComboBox" or "Button", in any case)
// in `parent`; `menu` is then the control's id. The menu of a top-level window comes from its class. Position and size
// are those of the whole window without a window manager's frame, for a combo box with its list open; CW_USEDEFAULT
// leaves them to the system. A window without WS_CAPTION has no frame, is placed exactly and stays in front. WM_CREATE
// is sent before this returns; the client rectangle is known by then. Null on failure: no such class, no such parent,
// no display, which a line on standard error says with its reason. Left out: a refusal by the result of WM_CREATE.
HWND CreateWindowExA(DWORD extendedStyle, LPCSTR className, LPCSTR windowName, DWORD style, int x, int y, int width,
                     int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID parameter);

#define CreateWindowA(className, windowName, style, x, y, width, height, parent, menu, instance, parameter) \
    CreateWindowExA(0, className, windowName, style, x, y, width, height, parent, menu, instance, parameter)

// Shows a window, whatever the command. It is on the screen when this returns. Returns whether it was visible before.
BOOL ShowWindow(HWND window, int showCommand);

// Sends WM_PAINT at once if part of the window needs drawing.
BOOL UpdateWindow(HWND window);

// Marks a rectangle of the client area (null: all of it) as needing to be drawn. With `erase` it is filled with the
// class's background first. WM_PAINT comes with UpdateWindow, or once the message queue is empty.
BOOL InvalidateRect(HWND window, const RECT* rectangle, BOOL erase);

// Sends WM_DESTROY, then removes the window and its controls. The handle is invalid afterwards. Not to be called while
// WM_DESTROY is handled.
BOOL DestroyWindow(HWND window);
BOOL IsWindow(HWND window);

// The client area, without frame and menu: 0, 0, width, height.
BOOL GetClientRect(HWND window, RECT* rectangle);

// Writes the whole style and returns the one given before, 0 on failure. WS_DISABLED and WS_VISIBLE take effect at
// once. Left out: every index but GWL_STYLE, and that showing and hiding change the style.
LONG SetWindowLongA(HWND window, int index, LONG value);

// GetFocus returns the control with the focus. While another program's window is active, that is the control of the
// newest window that gets the focus back. Null if there is none. SetFocus passes the focus to a control and returns the
// one that had it.
HWND GetFocus();
HWND SetFocus(HWND window);

// Calls the window's procedure, or the control's own (controls.h), and returns its result.
LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// The default actions of a window: WM_CLOSE destroys it, WM_PAINT draws its background. Returns 0.
LRESULT DefWindowProcA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Finds a top-level window of any class and any program by its whole title. Null if there is none. Where there is no X
// server, other programs' windows aren't found. Left out: search by class (`className` must be null) and for any title
// (`windowName` must not be null).
HWND FindWindowA(LPCSTR className, LPCSTR windowName);

// Waits for the next message. Returns 0 for WM_QUIT, with the exit code in `wParam`, which comes after PostQuitMessage
// once no posted message is left. Without a display no further message can come, so WM_QUIT follows at once. Left out:
// the filters, which must be 0.
BOOL GetMessageA(MSG* message, HWND window, UINT first, UINT last);

// TranslateMessage does nothing: the press of a key with a character comes as WM_CHAR or WM_SYSCHAR in place of
// WM_KEYDOWN or WM_SYSKEYDOWN.
BOOL TranslateMessage(const MSG* message);
LRESULT DispatchMessageA(const MSG* message);

// Ends the message loop with `exitCode`. May be called before the loop starts.
void PostQuitMessage(int exitCode);

// Accelerators, from a table of the resources. TranslateAcceleratorA returns nonzero if `message` is a key of the
// table, after sending WM_COMMAND with the id in the low word and 1 in the high word. Left out: accelerators of virtual
// keys.
HACCEL LoadAcceleratorsA(HINSTANCE instance, LPCSTR tableName);
int TranslateAcceleratorA(HWND window, HACCEL table, MSG* message);

#endif
