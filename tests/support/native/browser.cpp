#include "tests/support/browser.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "sample/file_writing.h"

void writePagesTo(const std::string& file) {
    const std::filesystem::path programs = file + ".programs", browser = programs / "xdg-open";
    std::filesystem::create_directory(programs);
    EXPECT_TRUE(writeFile(browser, "#!/bin/sh\necho \"$1\" >> '" + file + "'\n"));
    std::filesystem::permissions(browser, std::filesystem::perms::owner_all);
    setenv("PATH", (programs.string() + ":" + std::getenv("PATH")).c_str(), 1);
}
