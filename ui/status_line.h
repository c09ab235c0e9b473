// The line at the foot of the splash window, which tells what is being read.
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

// Where the line stands in `window`: the bottom 30 pixels of its client area.
RECT statusLineRectangle(HWND window);

// Has the splash window show the line as it stands, before this returns. Without a splash window it does nothing.
void showStatusLine();

#endif
