#include <functional>

#include "platform/files.h"
#include "tests/restore/restore_test.h"
#include "world/content_sum.h"

namespace {

class RestorePointsTest : public RestoreTest {};

TEST_F(RestorePointsTest, APointIsAPlainDirectoryOfAllNeighborhoodsWithAListBeside) {
    for (const char* leftOut : {"UserData/Backups/neighborhood.200235.147.iff", "UserData/Characters/backups/a.iff",
                                "UserData/TMPneighborhood.iff", "UserData/Characters/TMPUser00001.iff",
                                "UserData/neighborhood.iff.tidewright-new0", "UserData/a.iff.tidewright-old3",
                                "UserData old/neighborhood.iff", "UserData1/neighborhood.iff"})
        files_.write(std::string("game/") + leftOut, "left out");
    const MadePoint made = make();
    ASSERT_EQ(made.error, "");
    EXPECT_EQ(treeOf(files_.path("points/" + made.name)),
              (Tree{{"UserData/neighborhood.iff", bytesFrom("the neighborhood")},
                    {"UserData/Characters/User00001.iff", bytesFrom("123456789")},
                    {"UserData/Houses/House01.iff", bytesFrom("a house")},
                    {"UserData2/neighborhood.iff", bytesFrom("another neighborhood")}}));
    const RestorePoint listed = point(made.name);
    EXPECT_EQ(listed.damage, "");
    EXPECT_EQ(listed.simsDirectory, gameOf(game()));
    EXPECT_FALSE(listed.sessionEnded);
    EXPECT_TRUE(noteSessionEnded(points(), made.name));
    EXPECT_TRUE(point(made.name).sessionEnded);
    const Bytes bytes = files_.bytesOf("points/" + made.name + ".txt");
    const std::string text(bytes.begin(), bytes.end());
    EXPECT_TRUE(
        text.starts_with("Tidewright restore point 1\ntime 2026-11-25 18:01:03.250\nreason evening\nended yes\n"
                         "game " +
                         game() + "\nfile 9 cbf43926 "))
        << text;
}

TEST_F(RestorePointsTest, WhatIsAsBeforeTakesNoRoomAndNoPointSharesAFileWithTheGame) {
    const std::string first = make().name;
    files_.write(live, "the neighborHood");
    fs::last_write_time(files_.path(live),
                        fs::last_write_time(files_.path("points/" + first + "/UserData/neighborhood.iff")));
    files_.write("points/" + first + "/UserData/Houses/House01.iff", "broken!");  // of the same size
    const std::string second = make().name;
    const auto isOf = [&](const std::string& file, const std::string& other) {
        return isSameFile(files_.path("points/" + second + "/UserData/" + file).c_str(),
                          files_.path(other + file).c_str());
    };
    EXPECT_TRUE(isOf("Characters/User00001.iff", "points/" + first + "/UserData/"));
    EXPECT_FALSE(isOf("Characters/User00001.iff", "game/UserData/"));
    EXPECT_FALSE(isOf("neighborhood.iff", "points/" + first + "/UserData/"))
        << "the bytes differ, though size and time don't";
    EXPECT_EQ(point(second).damage, "");
    EXPECT_NE(point(first).damage, "");
}

TEST_F(RestorePointsTest, PointsAreListedByTimeAndTheOldestGoes) {
    const SYSTEMTIME time = nextMinute();
    std::vector<std::string> made;
    for (std::size_t i = 0; i < 12; ++i)
        made.push_back(makeRestorePoint(points(), game(), PointReason::byHand, time).name);
    EXPECT_EQ(made[1], made[0] + " (2)");
    for (std::size_t i = 12; i < 31; ++i)
        made.push_back(make().name);
    const auto listed = listRestorePoints(points());
    ASSERT_EQ(listed.size(), 30U);
    for (std::size_t i = 0; i < listed.size(); ++i)
        EXPECT_EQ(listed[i].name, made[30 - i]);
    EXPECT_FALSE(files_.exists("points/" + made[0] + ".txt"));
    EXPECT_TRUE(deleteRestorePoint(points(), made[5]));
    EXPECT_EQ(point(made[5]).name, "");
    EXPECT_EQ(point(made[6]).damage, "");
}

TEST_F(RestorePointsTest, APointThatIsNotAsNotedIsListedSoAndIsNotGoneBackTo) {
    const std::string good = make(PointReason::byHand).name;
    const std::string house = "UserData/Houses/House01.iff", path = "points/" + good + '/',
                      list = "points/" + good + ".txt";
    const auto text = [&] {
        const Bytes bytes = files_.bytesOf(list);
        return std::string(bytes.begin(), bytes.end());
    };
    // With the checksum that belongs to the new text.
    const auto note = [&](const std::string& from, const std::string& to, int files = 4) {
        std::string changed = text();
        changed.replace(changed.find(from), from.size(), to);
        const std::size_t lastLine = changed.rfind("end ");
        ContentSum sum;
        sum.add(bytesFrom(changed.substr(0, lastLine)));
        std::array<char, 16> checksum{};
        std::snprintf(checksum.data(), checksum.size(), "%08x", static_cast<unsigned>(sum.checksum));
        files_.write(list, changed.substr(0, lastLine) + "end " + std::to_string(files) + " " + checksum.data() + "\n");
    };
    std::string thousands;
    for (int number = 10'000; number < 15'000; ++number)
        thousands += "file 7 9ae0daaf 0 644 UserData/Houses/House" + std::to_string(number) + ".iff\n";
    const struct {
        const char* what;
        std::function<void()> spoil;
    } rows[] = {
        {"no list", [&] { files_.remove(list); }},
        {"a cut list", [&] { files_.write(list, text().substr(0, text().size() - 1)); }},
        {"more behind the list", [&] { files_.write(list, text() + "\n"); }},
        {"a changed time", [&] { files_.write(list, text().replace(text().find("18:"), 2, "17")); }},
        {"no such month", [&] { note("2026-11", "2026-13"); }},
        {"a path out of the point", [&] { note(house, "UserData/../../../House01.iff"); }},
        {"a file that a point leaves out", [&] { note("House01", "TMPHouse01"); }},
        {"a file outside the neighborhoods", [&] { note("UserData2/", "GameData/"); }},
        {"a path twice", [&] { note(house, "UserData/Characters/User00001.iff"); }},
        {"a path with a line break", [&] { note("House01", "House\n01"); }},
        {"thousands of files that aren't there",
         [&] { note("UserData/Houses/House01.iff\n", "UserData/Houses/House01.iff\n" + thousands, 5004); }},
        {"a path with a zero byte", [&] { note("House01", "House01%00"); }},
        {"a negative size", [&] { note("file 7 ", "file -7 "); }},
        {"a missing file", [&] { files_.remove(path + house); }},
        {"a directory for a file", [&] { files_.remove(path + house), files_.makeDirectory(path + house); }},
        {"another size", [&] { files_.write(path + house, "a house!"); }},
        {"other bytes", [&] { files_.write(path + house, "a mouse"); }},
        {"another name of the directory",
         [&] { fs::rename(files_.path("points/" + good), files_.path("points/other")); }},
    };
    files_.write(live, "played since");
    const auto before = whole();
    const Tree points = treeOf(files_.path("points"));
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        row.spoil();
        const std::string listed = listRestorePoints(this->points()).front().name;
        EXPECT_NE(point(listed).damage, "");
        const std::string refusal = goBackTo(listed).error;
        EXPECT_TRUE(refusal.starts_with("The restore point isn't whole.")) << refusal;
        EXPECT_NE(goBackTo(listed, 3).error, "") << "also where nothing would change";
        EXPECT_EQ(before, whole());
        fs::remove_all(files_.path("points"));
        for (const auto& [name, bytes] : points)
            files_.write("points/" + name, bytes);
    }
    EXPECT_EQ(goBackTo(good).error, "") << "after all this";
}

}  // namespace
