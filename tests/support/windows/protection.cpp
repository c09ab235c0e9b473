#include "tests/support/protection.h"

#include <windows.h>

#include "tests/support/temp_directory.h"

bool protectionHolds() {
    const TempDirectory directory;
    directory.write("file", "");
    const std::string path = directory.path("file");
    SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY);
    const bool holds = !std::ofstream(path);
    SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    return holds;
}
