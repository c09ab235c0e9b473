#include <windows.h>

#include "tests/save/save_test.h"

namespace {

using LeftOverPartsWindowsTest = SaveTest;

TEST_F(LeftOverPartsWindowsTest, ASaveDeletesThoseOfEndedProcessesButNotARunningOnes) {
    start();
    for (const std::string directory : {"", "Backups/", "Characters/", "Characters/Backups/"})
        files().write("UserData/" + directory + "~part1.tmp", "left behind");
    const std::string runningOnes = "UserData/Characters/~part2.tmp";
    files().write(runningOnes, "being written");
    HANDLE const writer = CreateFileA(files().path(runningOnes).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, 0, nullptr);
    save();
    EXPECT_EQ(states(), std::string(allSaved) + "; " + runningOnes + "\n");
    CloseHandle(writer);
}

}  // namespace
