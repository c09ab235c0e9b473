// Paths that the "A" calls accept.
#ifndef PLATFORM_WINDOWS_ANSI_PATH_H
#define PLATFORM_WINDOWS_ANSI_PATH_H

#include <string>

// An existing path in the system's code page. If a character isn't in it, the short (8.3) path, which has none of them.
// Empty if there is no such path either, as on volumes without short names.
std::string ansiPath(const wchar_t* path);

#endif
