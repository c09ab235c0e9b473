#include "restore/point_words.h"

#include <chrono>

#include "restore/going_back.h"
#include "tests/start/evening_game.h"

namespace {

class PointWordsTest : public EveningTest {
 protected:
    std::string points() const { return files().path("points"); }
    MadePoint make(PointReason reason, WORD day) const {
        return makeRestorePoint(points(), game(), reason, {2026, 11, 0, day, 12, 0, 0, 0});
    }
    std::vector<std::string> entries() const {
        auto all = listRestorePoints(points());
        checkPoints(points(), all);
        return pointEntries(points(), all, game(), {2026, 11, 0, 25, 13, 0, 0, 0});
    }
};

TEST_F(PointWordsTest, EachPointSaysWhatHappenedAfterIt) {
    start({.freeRoom = true}, true);
    make(PointReason::evening, 23);
    save();
    make(PointReason::byHand, 24);
    files().write("UserData/Houses/House01.iff", "built");
    const std::string last = make(PointReason::evening, 25).name;
    const auto said = entries();
    ASSERT_EQ(said.size(), 3U);
    EXPECT_TRUE(said[0].starts_with("today ") && said[0].ends_with(" - nothing changed")) << said[0];
    EXPECT_TRUE(said[1].starts_with("yesterday ")) << said[1];
    EXPECT_TRUE(said[1].ends_with("(made by hand) - Neighborhood 1 was played")) << said[1];
    EXPECT_TRUE(said[2].starts_with("23 November ")) << said[2];
    EXPECT_TRUE(said[2].ends_with(" - Clover Thistlewood became a teenager; Bramble Thistlewood moved out")) << said[2];
    files().remove("points/" + last + "/UserData/Houses");
    EXPECT_TRUE(entries()[0].ends_with(" (not whole)")) << entries()[0];
}

TEST_F(PointWordsTest, TheLinesSayWhatGoingBackWouldChange) {
    start();
    const std::string before = make(PointReason::evening, 23).name;
    save(true, true);
    files().write("UserData/Houses/House01.iff", "built");
    fs::last_write_time(files().path("UserData/Houses/House01.iff"),
                        fs::file_time_type::clock::from_sys(
                            std::chrono::sys_seconds(std::chrono::sys_days(std::chrono::year(2026) / 11 / 20)) +
                            std::chrono::hours(12)));
    const auto point = listRestorePoints(points()).front();
    const auto lines = comparisonLines(points(), point, game(), allNeighborhoods);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0], "Families: 1 then, 2 now. Sims: 3 then, 3 now.");
    EXPECT_EQ(lines[1], "2 files will change, 1 will go and 0 will come, among them 1 house.");
    EXPECT_EQ(lines[2], "Neighborhood 1 was played after that, on 20 November: this will be undone, too.");
    EXPECT_EQ(comparisonLines(points(), point, game(), 2),
              std::vector<std::string>{"Neither the restore point nor the game has a Neighborhood 2."});
}

TEST(PointTitlesTest, NoTwoReadAlike) {
    std::vector<RestorePoint> points(4);
    for (std::size_t i = 0; i < points.size(); ++i)
        points[i].time = {2026, 11, 0, 25, 12, 5, static_cast<WORD>(i < 2 ? 9 : 3), 0};
    points[3].reason = PointReason::byHand;
    std::string ends;
    for (const std::string& title : pointTitles(points, {2026, 11, 0, 25, 13, 0, 0, 0}))
        ends += title.substr(title.find(':')) + "; ";
    EXPECT_EQ(ends, ":05:09 (2); :05:09; :05:03; :05 (made by hand); ");
}

}  // namespace
