// Drawing, cursors and pictures.
#ifndef PLATFORM_NATIVE_API_GDI_H
#define PLATFORM_NATIVE_API_GDI_H

#include "platform/native/api/types.h"

constexpr UINT DT_LEFT = 0x0000;
constexpr UINT DT_CENTER = 0x0001;
constexpr DWORD SRCCOPY = 0x00CC0020;
constexpr UINT IMAGE_BITMAP = 0;
constexpr UINT IMAGE_ICON = 1;
constexpr UINT LR_DEFAULTCOLOR = 0x0000;

inline const LPCSTR IDC_ARROW = MAKEINTRESOURCEA(32512);
inline const LPCSTR IDC_WAIT = MAKEINTRESOURCEA(32514);
inline const LPCSTR IDC_APPSTARTING = MAKEINTRESOURCEA(32650);

struct PAINTSTRUCT {
    HDC hdc;
    BOOL fErase;
    RECT rcPaint;
};

// Begins and ends the answer to WM_PAINT: fills the background of what waits to be drawn, where erasing was asked for,
// and limits the drawing to it. Nothing waits to be drawn afterwards.
HDC BeginPaint(HWND window, PAINTSTRUCT* paint);
BOOL EndPaint(HWND window, const PAINTSTRUCT* paint);

// Draws `text` (`count` characters, -1: up to its zero byte) from the top of `rectangle`, clipped to it, at its left
// edge or with DT_CENTER between its edges, in the message font. CR, LF or both begin a new line; "&" underlines the
// character behind it and "&&" draws one. Returns the height of the text. Left out: every other format.
int DrawTextA(HDC dc, LPCSTR text, int count, RECT* rectangle, UINT format);

// A device context of the whole screen (`window` null) or of a window's client area. What is drawn on the screen shows
// on the program's own window that lies there, above everything in it, and stays until that part of the window is drawn
// anew.
HDC GetDC(HWND window);
int ReleaseDC(HWND window, HDC dc);

// A context in memory, holding the bitmap that SelectObject puts into it. SelectObject returns what it held before.
HDC CreateCompatibleDC(HDC dc);
HGDIOBJ SelectObject(HDC dc, HGDIOBJ object);
BOOL DeleteDC(HDC dc);
BOOL DeleteObject(HGDIOBJ object);

// Copies a rectangle between two contexts. Left out: every operation but SRCCOPY.
BOOL BitBlt(HDC target, int x, int y, int width, int height, HDC source, int sourceX, int sourceY, DWORD operation);

// The cursor that shows over the program's windows from now on; the arrow gives back each window's own. Returns the one
// before.
HCURSOR SetCursor(HCURSOR cursor);

#endif
