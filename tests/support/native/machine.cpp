#include "tests/support/machine.h"

#include <cstdlib>

#include "gamefiles/file_writing.h"

std::string installGame(const std::filesystem::path& prefix) {
    setenv("WINEPREFIX", prefix.c_str(), 1);
    return "C:\\Program Files (x86)\\Maxis\\The Sims\\";
}

void uninstallGame(const std::filesystem::path& prefix) {
    writeFile(prefix / "system.reg",
              "WINE REGISTRY Version 2\n\n[Software\\\\Maxis\\\\The Sims]\n\"Version\"=\"1.2\"\n");
}
