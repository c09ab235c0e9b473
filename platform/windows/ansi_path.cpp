#include "platform/windows/ansi_path.h"

#include <windows.h>

#include <array>

namespace {

// Empty if a character has no place in the code page: a similar one would lead elsewhere.
std::string converted(const wchar_t* path) {
    std::array<char, std::size_t{2} * MAX_PATH> text{};  // some code pages take two bytes
    BOOL replaced = FALSE;
    const int size = WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, path, -1, text.data(),
                                         static_cast<int>(text.size()), nullptr, &replaced);
    return size > 0 && replaced == FALSE ? std::string(text.data()) : "";
}

}  // namespace

std::string ansiPath(const wchar_t* path) {
    std::string text = converted(path);
    if (!text.empty()) return text;
    std::array<wchar_t, MAX_PATH> shortPath{};
    const DWORD length = GetShortPathNameW(path, shortPath.data(), shortPath.size());
    return length > 0 && length < shortPath.size() ? converted(shortPath.data()) : "";
}
