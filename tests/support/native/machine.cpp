#include "tests/support/machine.h"

#include <cstdlib>

std::string installGame(const std::filesystem::path& prefix) {
    setenv("WINEPREFIX", prefix.c_str(), 1);
    return "C:\\Program Files (x86)\\Maxis\\The Sims\\";
}

void uninstallGame(const std::filesystem::path& prefix) {
    std::filesystem::remove(prefix / "system.reg");
}
