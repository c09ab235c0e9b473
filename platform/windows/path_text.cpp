#include "platform/path_text.h"

#include <windows.h>

#include <array>

std::string shownPath(const std::string& path) {
    return path;
}

std::string absolutePath(const std::string& path) {
    std::array<char, MAX_PATH> full{};
    const DWORD length = GetFullPathNameA(path.c_str(), full.size(), full.data(), nullptr);
    std::string absolute = length > 0 && length < full.size() ? full.data() : path;
    // "C:\" without its backslash would be that drive's working directory.
    while (absolute.size() > 3 && absolute.back() == '\\') {
        absolute.pop_back();
    }
    return absolute;
}

std::string realPath(const std::string& path) {
    return absolutePath(path);
}

std::string linkTarget(const std::string&) {
    return "";
}
