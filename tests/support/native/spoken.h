// What a screen reader says of a window.
#ifndef TESTS_SUPPORT_NATIVE_SPOKEN_H
#define TESTS_SUPPORT_NATIVE_SPOKEN_H

#include <string>

#include "platform/win32.h"

std::string spokenName(HWND window);
std::string spokenText(HWND window);  // the lines that the window itself shows

#endif
