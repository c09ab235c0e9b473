#include <algorithm>

#include "platform/files.h"
#include "platform/win32.h"

std::vector<std::string> fileNamesIn(const char* directory) {
    std::vector<std::string> names;
    WIN32_FIND_DATAA found{};
    const HANDLE search = FindFirstFileA((std::string(directory) + "\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) names.emplace_back(found.cFileName);
    } while (FindNextFileA(search, &found));
    FindClose(search);
    std::ranges::sort(names);
    return names;
}
