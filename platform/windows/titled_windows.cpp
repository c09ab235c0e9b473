#include "platform/titled_windows.h"

#include <windows.h>

#include <array>

#include "platform/letter_case.h"

std::vector<std::string> kindsOfWindowsTitled(const char* title) {
    std::vector<std::string> kinds;
    HWND window = nullptr;
    while ((window = FindWindowExA(nullptr, window, nullptr, title)) != nullptr) {
        std::array<char, 256> name{};
        GetClassNameA(window, name.data(), name.size());
        kinds.push_back(lowered(name.data()));
    }
    return kinds;
}
