// Drawing, cursors and pictures.
#ifndef PLATFORM_NATIVE_API_GDI_H
#define PLATFORM_NATIVE_API_GDI_H

#include "platform/native/api/types.h"

constexpr UINT DT_LEFT = 0x0000;
constexpr UINT DT_CENTER = 0x0001;
constexpr DWORD SRCCOPY = 0x00CC0020;
constexpr UINT IMAGE_BITMAP = 0;
constexpr UINT LR_DEFAULTCOLOR = 0x0000;

inline const LPCSTR IDC_ARROW = MAKEINTRESOURCEA(32512);
inline const LPCSTR IDC_WAIT = MAKEINTRESOURCEA(32514);
inline const LPCSTR IDC_APPSTARTING = MAKEINTRESOURCEA(32650);

struct PAINTSTRUCT {
    HDC hdc;
    BOOL fErase;
    RECT rcPaint;
};

// Begins and ends the answer to WM_PAINT. BeginPaint fills the background of the part that needs drawing, if erasing
// was requested, and limits drawing to that part. Nothing needs drawing afterwards.
HDC BeginPaint(HWND window, PAINTSTRUCT* paint);
BOOL EndPaint(HWND window, const PAINTSTRUCT* paint);

// Draws `text` (`count` characters; -1: up to its terminator) in the message font, from the top of `rectangle` and
// clipped to it, at its left edge or centered with DT_CENTER. CR, LF or CR LF start a new line. "&" underlines the next
// character, "&&" draws one. Returns the height of the text in units. Left out: every other format.
int DrawTextA(HDC dc, LPCSTR text, int count, RECT* rectangle, UINT format);

// A device context of the whole screen (`window` null) or of a window's client area. Drawing on the screen appears on
// the program's own window at that place, above everything in it, until that part of the window is drawn again.
HDC GetDC(HWND window);
int ReleaseDC(HWND window, HDC dc);

// A context in memory with a bitmap that SelectObject puts into it. SelectObject returns the bitmap that it replaces.
HDC CreateCompatibleDC(HDC dc);
HGDIOBJ SelectObject(HDC dc, HGDIOBJ object);
BOOL DeleteDC(HDC dc);
BOOL DeleteObject(HGDIOBJ object);

// Copies a rectangle from one context to another. Left out: every operation but SRCCOPY.
BOOL BitBlt(HDC target, int x, int y, int width, int height, HDC source, int sourceX, int sourceY, DWORD operation);

// Shows `cursor` over all windows of the program from now on. The arrow gives each window its own cursor back. Returns
// the cursor before.
HCURSOR SetCursor(HCURSOR cursor);

#endif
