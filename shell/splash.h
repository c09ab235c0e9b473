// The splash window: the picture, and the line that says what is being read.
#ifndef SHELL_SPLASH_H
#define SHELL_SPLASH_H

#include "platform/win32.h"

// Shows the splash window, which stays until it is destroyed. False if it can't be created.
bool showSplashWindow();

#endif
