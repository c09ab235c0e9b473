#include "world/sims_directory.h"

#include <array>
#include <string>

#include "platform/fixed_text.h"
#include "platform/win32.h"

int findSimsDirectory(DirectoryText& directory) {
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, "Software\\Maxis\\The Sims", 0, KEY_ALL_ACCESS, &key) != ERROR_SUCCESS) {
        return -1;
    }
    std::array<char, 100> value{};
    DWORD size = value.size();
    const LSTATUS status =
        RegQueryValueExA(key, "SIMS_DATA", nullptr, nullptr, reinterpret_cast<LPBYTE>(value.data()), &size);
    RegCloseKey(key);
    if (status != ERROR_SUCCESS) return -1;
    value.back() = '\0';  // a value may come without its terminator
    directory.assign(value.data());
    return 0;
}

NeighborhoodPath neighborhoodDirectory(const char* simsDirectory, int number) {
    return joined<NeighborhoodPath>(simsDirectory, "UserData", number > 1 ? std::to_string(number) : "");
}
