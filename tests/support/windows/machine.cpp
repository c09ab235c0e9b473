#include "tests/support/machine.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "sample/wine_prefix.h"

// The key of 32-bit programs; 64-bit ones see it in another place.
constexpr const char* gameKey =
    sizeof(void*) == 4 ? "Software\\Maxis\\The Sims" : "Software\\Wow6432Node\\Maxis\\The Sims";

std::string installGame(const std::filesystem::path& prefix) {
    const std::string directory = gameDirectory(prefix).make_preferred().string();
    HKEY key = nullptr;
    RegCreateKeyA(HKEY_LOCAL_MACHINE, gameKey, &key);
    EXPECT_EQ(RegSetValueExA(key, "SIMS_DATA", 0, REG_SZ, reinterpret_cast<const BYTE*>(directory.c_str()),
                             static_cast<DWORD>(directory.size() + 1)),
              ERROR_SUCCESS);
    RegCloseKey(key);
    return directory + "\\";
}

void uninstallGame(const std::filesystem::path&) {
    HKEY key = nullptr;
    RegOpenKeyA(HKEY_LOCAL_MACHINE, gameKey, &key);
    EXPECT_EQ(RegDeleteValueA(key, "SIMS_DATA"), ERROR_SUCCESS);
    RegCloseKey(key);
}
