#include <windows.h>

#include "tests/save/saved_files.h"

namespace {

using LeftOverPartsWindowsTest = SaveTest;

TEST_F(LeftOverPartsWindowsTest, ASaveDeletesThoseOfEndedProcessesButNotARunningOnes) {
    const TestNeighborhood test(householdOf({{}, {.recordName = "user00002", .guid = 7}}), {{}});
    const TempDirectory& files = test.files();
    EXPECT_TRUE(writeDataFiles(files.path()));
    for (const std::string directory : {"", "Backups/", "Characters/", "Characters/Backups/"})
        files.write("UserData/" + directory + "~part1.tmp", "left behind");
    files.write("UserData/Characters/~part2.tmp", "being written");
    HANDLE const writer = CreateFileA(files.path("UserData/Characters/~part2.tmp").c_str(), GENERIC_WRITE, 0, nullptr,
                                      OPEN_EXISTING, 0, nullptr);
    moveOut(test, 0, "Mills", 20'000, 0);  // no file of a Sim changes
    const Tree before = treeOf(files.path());
    save(test);
    EXPECT_EQ(differences(before, treeOf(files.path())),
              "UserData/Backups/neighborhood.200235.147.iff\nUserData/Backups/~part1.tmp\n"
              "UserData/Characters/Backups/~part1.tmp\nUserData/Characters/~part1.tmp\nUserData/neighborhood.iff\n"
              "UserData/~part1.tmp\n");
    CloseHandle(writer);
}

}  // namespace
