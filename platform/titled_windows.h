// Windows of any program that bear a title.
#ifndef PLATFORM_TITLED_WINDOWS_H
#define PLATFORM_TITLED_WINDOWS_H

#include <string>
#include <vector>

// The kinds of the top-level windows with exactly this title: on Windows the name of the window's class, on the X
// server the class that the program gives itself in WM_CLASS, both in lower case. Empty for a window that has none.
std::vector<std::string> kindsOfWindowsTitled(const char* title);

#endif
