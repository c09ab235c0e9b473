// The splash window: the picture, and the line that tells what is being read.
#ifndef SHELL_SPLASH_H
#define SHELL_SPLASH_H

#include "platform/win32.h"

// Shows the splash window; false if it can't be created. It stays until somebody destroys it.
bool showSplashWindow();

#endif
