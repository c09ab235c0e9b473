// The screen that Qt draws on, or its absence.
//
// Qt ends the process when it can't open the screen that it was told to use. So each candidate is tried before: its
// plugin must load and its server must answer.
#ifndef PLATFORM_NATIVE_SCREEN_DISPLAY_H
#define PLATFORM_NATIVE_SCREEN_DISPLAY_H

// Opens the screen that QT_QPA_PLATFORM names, or else that of the X server at $DISPLAY. Called once, before anything
// else here; without a screen no Qt application exists afterwards. `arguments` are those of main, whose first names the
// program.
void openDisplay(char** arguments);

// Whether a screen was opened. All that touches Qt's widgets asks this first.
bool hasDisplay();

// Closes the screen that openDisplay opened. Every window must be gone.
void closeDisplay();

#endif
