// The system's own dialog for a directory.
#ifndef PLATFORM_DIRECTORY_CHOICE_H
#define PLATFORM_DIRECTORY_CHOICE_H

#include <string>

#include "platform/win32.h"

// Lets the user choose an existing directory, modal to `owner`, and returns whether that was done; there is no choice
// without a display. `directory` becomes an absolute path without a separator at its end. On Windows it is empty if the
// "A" calls have no path for it. Natively the dialog shows hidden directories and begins in the home directory, because
// most Wine prefixes are hidden there.
bool chooseDirectory(HWND owner, const char* title, std::string& directory);

#endif
