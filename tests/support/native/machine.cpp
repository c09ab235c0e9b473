#include "tests/support/machine.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "gamefiles/file_writing.h"

std::string installGame(const std::filesystem::path& prefix) {
    setenv("WINEPREFIX", prefix.c_str(), 1);
    return "C:\\Program Files (x86)\\Maxis\\The Sims\\";
}

void uninstallGame(const std::filesystem::path& prefix) {
    std::filesystem::remove(prefix / "system.reg");
}

void writePagesTo(const std::string& file) {
    const std::filesystem::path programs = file + ".programs", browser = programs / "xdg-open";
    std::filesystem::create_directory(programs);
    EXPECT_TRUE(writeFile(browser, "#!/bin/sh\necho \"$1\" >> '" + file + "'\n"));
    std::filesystem::permissions(browser, std::filesystem::perms::owner_all);
    setenv("PATH", (programs.string() + ":" + std::getenv("PATH")).c_str(), 1);
}
