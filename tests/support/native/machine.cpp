#include "tests/support/machine.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <cstdlib>

#include "gamefiles/file_writing.h"

namespace {

void limitFiles(rlim_t size) {
    std::signal(SIGXFSZ, SIG_IGN);  // the write itself tells of the failure
    const rlimit limit{size, RLIM_INFINITY};
    setrlimit(RLIMIT_FSIZE, &limit);
}

}  // namespace

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

FullDisk::FullDisk(std::uint64_t size) {
    limitFiles(size);
}

FullDisk::~FullDisk() {
    limitFiles(RLIM_INFINITY);
}
