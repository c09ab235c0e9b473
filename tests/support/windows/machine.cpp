#include "tests/support/machine.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "sample/wine_prefix.h"

namespace {

constexpr const char* gameKey = "Software\\Maxis\\The Sims";  // of 32-bit programs

}  // namespace

std::string installGame(const std::filesystem::path& prefix) {
    const std::string directory = gameDirectory(prefix).make_preferred().string();
    HKEY key = nullptr;
    RegCreateKeyExA(HKEY_LOCAL_MACHINE, gameKey, 0, nullptr, 0, KEY_WRITE | KEY_WOW64_32KEY, nullptr, &key, nullptr);
    EXPECT_EQ(RegSetValueExA(key, "SIMS_DATA", 0, REG_SZ, reinterpret_cast<const BYTE*>(directory.c_str()),
                             static_cast<DWORD>(directory.size() + 1)),
              ERROR_SUCCESS);
    RegCloseKey(key);
    return directory + "\\";
}

void uninstallGame(const std::filesystem::path&) {
    EXPECT_EQ(RegDeleteKeyExA(HKEY_LOCAL_MACHINE, gameKey, KEY_WOW64_32KEY, 0), ERROR_SUCCESS);
}
