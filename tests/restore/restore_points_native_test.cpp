// Names that only native file systems have, links, full disks and files of a size that takes no room.
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include "platform/files.h"
#include "tests/restore/restore_test.h"
#include "tests/support/native/held_calls.h"

namespace {

class RestorePointsNativeTest : public RestoreTest {};

TEST_F(RestorePointsNativeTest, EachNameComesBackByteForByte) {
    for (const char* name : {"\xC5\x81\xC3\xB3"
                             "d\xC5\xBA.iff",
                             "f\xFC"
                             "r.iff",
                             "two\nlines.iff", "100%.iff", "a\\b:c.iff", "Neighborhood.iff"})
        files_.write(std::string("game/UserData/Houses/") + name, name);
    files_.write("game/UserData/NEIGHBORHOOD.IFF", "of another spelling");
    const auto then = whole();
    const std::string made = make().name;
    fs::remove_all(files_.path("game/UserData/Houses"));
    fs::rename(files_.path(live), files_.path("game/UserData/Neighborhood.iff"));
    const auto since = whole();
    const GoneBack gone = goBackTo(made);
    EXPECT_EQ(gone.error, "");
    EXPECT_EQ(whole(), then);
    EXPECT_EQ(goBackTo(gone.present.name).error, "");
    EXPECT_EQ(whole(), since);
}

TEST_F(RestorePointsNativeTest, AGameInADirectoryOfAnotherSpellingIsAnotherGame) {
    const std::string made = make().name;
    files_.write("GAME/UserData/neighborhood.iff", "of another game");
    EXPECT_NE(goBack(points(), listed(made), files_.path("GAME") + "\\", allNeighborhoods).error, "");
    EXPECT_EQ(files_.bytesOf("GAME/UserData/neighborhood.iff"), bytesFrom("of another game"));
}

TEST_F(RestorePointsNativeTest, ALinkInTheGameIsReadAndOneInAPointIsNot) {
    fs::rename(files_.path("game/UserData2"), files_.path("elsewhere"));
    ASSERT_EQ(symlink("../elsewhere", files_.path("game/UserData2").c_str()), 0);
    ASSERT_EQ(symlink("..", files_.path("game/UserData/Houses/round").c_str()), 0);
    ASSERT_EQ(symlink("nowhere", files_.path("game/UserData/dangling.iff").c_str()), 0);
    const std::string made = make().name;
    EXPECT_EQ(treeOf(files_.path("points/" + made)).size(), 4U);
    files_.write("elsewhere/neighborhood.iff", "played");
    files_.write("pictures/mine.bmp", "outside the game");
    ASSERT_EQ(symlink("../../pictures", files_.path("game/UserData/Pictures").c_str()), 0);
    EXPECT_EQ(goBackTo(made).error, "");
    EXPECT_EQ(files_.bytesOf("elsewhere/neighborhood.iff"), bytesFrom("another neighborhood"));
    EXPECT_TRUE(files_.exists("pictures/mine.bmp"));
    fs::rename(files_.path(ann), files_.path("ann.iff"));
    fs::last_write_time(files_.path("ann.iff"), fs::file_time_type{});
    ASSERT_EQ(symlink(files_.path("ann.iff").c_str(), files_.path(ann).c_str()), 0);
    EXPECT_EQ(goBackTo(made).error, "");
    EXPECT_FALSE(fs::is_symlink(files_.path(ann)));
    EXPECT_EQ(fs::last_write_time(files_.path("ann.iff")), fs::file_time_type{});

    files_.write("elsewhere/House01.iff", "a house");
    const std::string houses = "points/" + made + "/UserData/Houses";
    for (const std::string& link : {houses + "/House01.iff", houses}) {
        files_.remove(link);
        const std::string target = link == houses ? "elsewhere" : "elsewhere/House01.iff";
        ASSERT_EQ(symlink(files_.path(target).c_str(), files_.path(link).c_str()), 0);
        EXPECT_NE(point(made).damage, "") << link;
        EXPECT_NE(goBackTo(made).error, "") << link;
    }
    EXPECT_TRUE(deleteRestorePoint(points(), made));
    EXPECT_TRUE(files_.exists("elsewhere/House01.iff"));
}

TEST_F(RestorePointsNativeTest, WithoutRoomNothingIsMadeAndTheRoomIsSaid) {
    fs::resize_file(files_.path(ann), 8LL << 40);  // of zeros, which take no room
    const MadePoint made = make();
    EXPECT_TRUE(made.needsRoom);
    EXPECT_GT(made.neededBytes, 8LL << 40);
    EXPECT_LT(made.availableBytes, made.neededBytes);
    EXPECT_EQ(treeOf(files_.path("points")), Tree());
}

TEST_F(RestorePointsNativeTest, NothingIsPutIntoANeighborhoodThatIsBeingSaved) {
    const std::string made = make().name;
    files_.write(live, "played");
    const DirectoryLock saving((game() + "UserData").c_str());
    EXPECT_EQ(goBackTo(made).error, "Another program is saving UserData.");
    EXPECT_EQ(files_.bytesOf(live), bytesFrom("played"));
}

TEST_F(RestorePointsNativeTest, WithoutHardLinksEachPointHasItsOwnFiles) {
    const auto withoutLinks = [](const std::function<void()>& act) {
        runWithHeldCalls(act, [](const seccomp_data& call) { return call.nr == SYS_linkat ? EPERM : carryOut; });
    };
    const std::string first = make().name;
    const auto then = whole();
    files_.write(live, "played");
    files_.remove(ann);
    const auto since = whole();
    withoutLinks([&] { goBackTo(first); });
    EXPECT_EQ(whole(), then);
    const RestorePoint present = point(listRestorePoints(points()).front().name);
    EXPECT_EQ(present.damage, "");
    EXPECT_EQ(fs::hard_link_count(points() + "/" + present.name + "/UserData/Houses/House01.iff"), 1U);
    withoutLinks([&] { goBackTo(present.name); });
    EXPECT_EQ(whole(), since);
}

// With each amount of room from none to enough.
TEST_F(RestorePointsNativeTest, OnAFullDiskAGoingBackIsDoneOrHasNotBegun) {
    const std::string disk = files_.path();
    const auto resize = [&](std::uintmax_t bytes, unsigned long how) {
        return mount("tidewright-test", disk.c_str(), "tmpfs", how, ("size=" + std::to_string(bytes)).c_str()) == 0;
    };
    if (unshare(CLONE_NEWNS) != 0 || mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
        GTEST_SKIP() << "only root mounts a small disk";
    ASSERT_TRUE(resize(4'000'000, 0));
    files_.write(live, std::string(20'000, 'a'));
    const std::string target = make().name;
    const auto then = whole();
    files_.write(live, std::string(30'000, 'b'));
    files_.write(ann, "another Sim");
    const auto before = whole();
    GoneBack gone{"not tried", false, {}};
    int pages = 0;
    for (; !gone.error.empty() && pages < 40; ++pages) {
        const auto room = fs::space(disk);
        ASSERT_TRUE(resize(room.capacity - room.free + static_cast<std::uintmax_t>(pages) * 4096, MS_REMOUNT));
        gone = goBackTo(target);
        EXPECT_EQ(whole(), gone.error.empty() ? then : before);
        EXPECT_FALSE(unfinishedGoingBack(points()));
    }
    EXPECT_GT(pages, 5) << gone.error;
    umount2(disk.c_str(), MNT_DETACH);
}

}  // namespace
