// What a save keeps of a file that the system has and Windows hasn't, and a lock that another process holds.
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <optional>
#include <thread>

#include "platform/files.h"
#include "tests/save/save_test.h"
#include "tests/support/native/held_calls.h"

namespace {

using SaveNativeTest = SaveTest;

TEST_F(SaveNativeTest, FilesKeepModeGroupAndSpellingAndABackupHasThoseOfItsFile) {
    start();
    const std::string characters = files().path("UserData/Characters/"), ann = characters + "User00001.IFF";
    const gid_t group = getgid() == 0 ? 5 : getgid();
    fs::rename(characters + "user00001.iff", ann);
    ASSERT_EQ(chown(ann.c_str(), static_cast<uid_t>(-1), group), 0);
    ASSERT_EQ(chmod(ann.c_str(), 0664), 0);
    const auto yesterday = fs::file_time_type::clock::now() - std::chrono::hours(24);
    fs::last_write_time(ann, yesterday);
    save();
    for (const std::string& name : {ann, characters + "Backups/user00001.200235.iff"}) {
        struct stat status = {};
        ASSERT_EQ(stat(name.c_str(), &status), 0) << name;
        EXPECT_TRUE(status.st_mode == (S_IFREG | 0664) && status.st_gid == group) << name;
        EXPECT_GT(fs::last_write_time(name), yesterday) << "the guide goes by the time of the save";
    }
    EXPECT_FALSE(fs::exists(characters + "user00001.iff"));
}

TEST_F(SaveNativeTest, AGroupThatCannotBeKeptMayDoWhatEverybodyMay) {
    start();
    const std::string ann = files().path("UserData/Characters/user00001.iff");
    ASSERT_EQ(chmod(ann.c_str(), 0674), 0);
    runWithHeldCalls([this] { save(); },
                     [](const seccomp_data& call) { return call.nr == SYS_fchown ? EPERM : carryOut; });
    EXPECT_EQ(fs::status(ann).permissions(), fs::perms{0644});
}

TEST_F(SaveNativeTest, AProtectedFileStaysAndOneThatATemporaryNameLinksTo) {
    const std::string temporary = "UserData/TMPneighborhood.iff",
                      backup = "UserData/Backups/neighborhood.200235.147.iff";
    const std::tuple<std::string, std::string, bool> rows[] = {
        {live, "new, backup old; new, backup old; old, temporary new", true},
        {TestNeighborhood::characterFile("user00001"),
         "old, temporary new; new, backup old; new without Ann, backup old", true},
        {backup, "new, backup old; new, backup old; new, backup other bytes, aside old", false},
        {temporary, "old; old; old, temporary old", true}};
    for (const auto& [name, after, isMarked] : rows) {
        SCOPED_TRACE(name);
        start();
        if (name == backup) files().write(backup, "older");
        if (name == temporary) fs::create_symlink(files().path(live), files().path(name));
        if (name != temporary) fs::permissions(files().path(name), fs::perms::owner_read);
        save();
        EXPECT_EQ(states(), after);
        EXPECT_EQ(test()->isDirty(), isMarked);
    }
}

TEST_F(SaveNativeTest, AnotherSaveIsWaitedForButOnlyForAWhile) {
    start();
    std::optional<DirectoryLock> other(files().path("UserData").c_str());
    ASSERT_TRUE(other->isHeld());
    save();
    EXPECT_EQ(states(), "old; old; old");
    EXPECT_TRUE(test()->isDirty());
    const std::jthread ending([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(400));
        other.reset();
    });
    save();
    EXPECT_EQ(states(), allSaved);
}

}  // namespace
