// What a screen reader calls a window.
#ifndef TESTS_SUPPORT_NATIVE_SPOKEN_H
#define TESTS_SUPPORT_NATIVE_SPOKEN_H

#include <string>

#include "platform/win32.h"

std::string spokenName(HWND window);

#endif
