// The screen that Qt draws on, or its absence.
//
// Qt ends the process if it can open none of the platforms that it is given, so those that need a server are tried
// first: the plugin must load and the server must answer. Platforms that draw directly on hardware can't be tried and
// aren't used. Qt's own fallback to "offscreen" is no way out: it loads the desktop's theme all the same, and GTK's
// ends the process if there is no screen.
#ifndef PLATFORM_NATIVE_SCREEN_DISPLAY_H
#define PLATFORM_NATIVE_SCREEN_DISPLAY_H

#include <string>

// Opens the screen that QT_QPA_PLATFORM names, or else the X server at $DISPLAY, or else the Wayland server at
// $WAYLAND_DISPLAY. Call it once, before anything else here. Without a screen there is no Qt application afterwards.
// `arguments` are those of main; only the first, the program's name, is used.
void openDisplay(char** arguments);

// Whether a screen is open. Check it before any use of Qt's widgets.
bool hasDisplay();

// Why there is no screen, as part of a sentence.
const std::string& whyNoDisplay();

// Closes the screen that openDisplay opened. Every window must be gone.
void closeDisplay();

#endif
