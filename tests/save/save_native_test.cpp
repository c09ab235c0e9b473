// What a save keeps of a file that the system has and Windows hasn't, and a lock that another process holds.
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <optional>
#include <thread>

#include "platform/files.h"
#include "tests/save/save_test.h"

namespace {

using SaveNativeTest = SaveTest;

TEST_F(SaveNativeTest, FilesKeepModeGroupAndSpellingAndABackupHasThoseOfItsFile) {
    start();
    const std::string characters = files().path("UserData/Characters/");
    std::filesystem::rename(characters + "user00001.iff", characters + "User00001.IFF");
    ASSERT_EQ(chown((characters + "User00001.IFF").c_str(), static_cast<uid_t>(-1), getgid() == 0 ? 5 : getgid()), 0);
    ASSERT_EQ(chmod((characters + "User00001.IFF").c_str(), 0664), 0);
    struct stat before = {}, after = {};
    ASSERT_EQ(stat((characters + "User00001.IFF").c_str(), &before), 0);
    save();
    for (const char* const name : {"User00001.IFF", "Backups/user00001.200235.iff"}) {
        ASSERT_EQ(stat((characters + name).c_str(), &after), 0) << name;
        EXPECT_EQ(after.st_mode, before.st_mode) << name;
        EXPECT_EQ(after.st_gid, before.st_gid) << name;
    }
    EXPECT_FALSE(std::filesystem::exists(characters + "user00001.iff"));
}

TEST_F(SaveNativeTest, AProtectedFileStays) {
    const std::string backup = "UserData/Backups/neighborhood.200235.147.iff";
    const std::tuple<std::string, std::string, bool> rows[] = {
        {live, "new, backup old; new, backup old; old, temporary new", true},
        {TestNeighborhood::characterFile("user00001"),
         "old, temporary new; new, backup old; new without Ann, backup old", true},
        {backup, "new, backup old; new, backup old; new, backup other bytes, aside old", false}};
    for (const auto& [name, after, isMarked] : rows) {
        SCOPED_TRACE(name);
        start();
        if (name == backup) files().write(backup, "older");
        std::filesystem::permissions(files().path(name), std::filesystem::perms::owner_read);
        save();
        EXPECT_EQ(states(), after);
        EXPECT_EQ(test()->isDirty(), isMarked);
    }
}

TEST_F(SaveNativeTest, ATemporaryNameThatLinksToTheLiveFileCostsItNothing) {
    start();
    std::filesystem::create_symlink(files().path(live), files().path("UserData/TMPneighborhood.iff"));
    save();
    EXPECT_EQ(states(), "old; old; old, temporary old");
    EXPECT_TRUE(test()->isDirty());
}

TEST_F(SaveNativeTest, AnotherSaveIsWaitedForButOnlyForAWhile) {
    start();
    std::optional<DirectoryLock> other(files().path("UserData").c_str());
    ASSERT_TRUE(other->isHeld());
    save();
    EXPECT_EQ(states(), "old; old; old");
    EXPECT_TRUE(test()->isDirty());
    std::thread ending([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(400));
        other.reset();
    });
    save();
    ending.join();
    EXPECT_EQ(states(), allSaved);
}

}  // namespace
