// The font that the user has chosen for messages.
#ifndef PLATFORM_WINDOWS_MESSAGE_FONT_H
#define PLATFORM_WINDOWS_MESSAGE_FONT_H

#include <windows.h>

// Lives until the program ends. Null if it can't be created, which selects the system's bitmap font.
HFONT messageFont();

#endif
