// The line at the bottom of the splash window, which says what is being read.
#ifndef UI_STATUS_LINE_H
#define UI_STATUS_LINE_H

#include <string_view>

#include "platform/fixed_text.h"
#include "platform/win32.h"

using StatusText = FixedText<99>;

const StatusText& statusLine();
void setStatusLine(std::string_view text);

// The window that shows the line; null while there is none.
void setSplashWindow(HWND window);
HWND splashWindow();

// The place of the line in `window`: the bottom 30 pixels of the client area.
RECT statusLineRectangle(HWND window);

// Makes the splash window repaint the line before this returns. Does nothing without a splash window.
void showStatusLine();

#endif
