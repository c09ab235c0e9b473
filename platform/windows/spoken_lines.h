// The lines of text that the program draws into a window, for screen readers. Windows knows nothing of drawn text, so
// each line has an invisible twin: a child window of the class "Static" at its place, with its words and without a
// picture of its own. Twins come before the controls that they lie left of or above. Screen readers take the text
// before a combo box for its label.
#ifndef PLATFORM_WINDOWS_SPOKEN_LINES_H
#define PLATFORM_WINDOWS_SPOKEN_LINES_H

#include <windows.h>

// Between these two calls the program draws all the lines that the window has. The second one drops the lines that
// weren't drawn again.
void beginLines(HWND window);
void endLines(HWND window);

// Notes a line that is drawn by DrawTextA, and announces it if its words have changed. `place` is in pixels.
void addLine(HWND window, HDC dc, LPCSTR text, int length, const RECT& place, UINT format);

#endif
