#include "restore/actions.h"
#include "sample/fact_template.h"
#include "sample/installation.h"
#include "tests/restore/restore_test.h"
#include "tests/support/user.h"
#include "world/neighborhood.h"

namespace {

class GoingBackTest : public RestoreTest {};

TEST_F(GoingBackTest, OneNeighborhoodComesBackAndAllElseStays) {
    const std::string before = make().name;
    files_.write(live, "played");
    files_.write("game/UserData/Houses/House02.iff", "built");
    files_.remove(ann);
    files_.write("game/UserData2/neighborhood.iff", "played, too");
    files_.write("game/UserData/Backups/a.iff", "a backup");
    files_.write("game/UserData/TMPa.iff", "left over");
    files_.write(std::string(live) + ".tidewright-old0", "the only one of its version");
    files_.write(std::string(live) + ".tidewright-new0", "half");
    fs::last_write_time(files_.path("game/UserData/Houses/House01.iff"), fs::file_time_type{});
    std::string error;
    const auto comparison = compareWithPoint(points(), point(before), game(), 1, error);
    ASSERT_TRUE(comparison);
    EXPECT_EQ(comparison->changed, std::vector<std::string>{"UserData/neighborhood.iff"});
    EXPECT_EQ(comparison->stamped, std::vector<std::string>{"UserData/Houses/House01.iff"});
    EXPECT_EQ(comparison->toCome, std::vector<std::string>{"UserData/Characters/User00001.iff"});
    EXPECT_EQ(comparison->toGo, std::vector<std::string>{"UserData/Houses/House02.iff"});

    const GoneBack gone = goBackTo(before, 1);
    EXPECT_EQ(gone.error, "");
    EXPECT_EQ(treeOf(files_.path("game")),
              (Tree{{"UserData/neighborhood.iff", bytesFrom("the neighborhood")},
                    {"UserData/Characters/User00001.iff", bytesFrom("123456789")},
                    {"UserData/Houses/House01.iff", bytesFrom("a house")},
                    {"UserData2/neighborhood.iff", bytesFrom("played, too")},
                    {"UserData/Backups/a.iff", bytesFrom("a backup")},
                    {"UserData/TMPa.iff", bytesFrom("left over")},
                    {"UserData/neighborhood.iff.tidewright-old0", bytesFrom("the only one of its version")},
                    {"GameData/Skins/skin.skn", bytesFrom("outside")}}));
    EXPECT_EQ(point(gone.present.name).reason, PointReason::goingBack);
    EXPECT_FALSE(unfinishedGoingBack(points()) || point(before).sessionEnded);
    EXPECT_EQ(goBackTo(before, 1).present.name, "") << "nothing differs any more";
}

TEST_F(GoingBackTest, AGameWithoutAnyNeighborhoodGetsAllOfThemBack) {
    const std::string made = make().name;
    const auto before = whole();
    fs::remove_all(files_.path("game/UserData"));
    fs::remove_all(files_.path("game/UserData2"));
    const auto without = whole();
    const GoneBack gone = goBackTo(made);
    EXPECT_EQ(gone.error, "");
    EXPECT_EQ(whole(), before);
    EXPECT_TRUE(point(made).sessionEnded) << "an evening before it is settled";
    EXPECT_EQ(goBackTo(gone.present.name).error, "");
    EXPECT_EQ(whole(), without);
}

// Sessions at random: children and teens grow up, others move out, and the game's files come, go, or change their
// bytes, their time or their mode.
TEST_F(GoingBackTest, EachPointComesBackExactlyAndSoDoesWhatWasBefore) {
    files_.remove("game");
    ASSERT_TRUE(writeInstallation(files_.path("prefix")) && writeTemplates(files_.path()));
    fs::copy(gameDirectory(files_.path("prefix")), files_.path("game"), fs::copy_options::recursive);
    std::mt19937 random(20261125);
    const auto below = [&](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
    int saves = 0;
    const auto save = [&](const std::string& directory) {
        Neighborhood read;
        read.load((game() + directory).c_str(), "neighborhood.iff");
        for (int i = 0; i < read.familyCount(); ++i)
            read.family(i)->memberCount();
        for (int i = 0; i < read.simCount(); ++i) {
            Sim& sim = *read.sim(i);
            if (sim.family() == nullptr || sim.bodyStrings() == nullptr || below(4) != 0) continue;
            const bool isChild = sim.stage() == stageNumber::child, isAdult = sim.stage() == stageNumber::adult;
            if (isAdult) sim.splitToNewFamily("Thistlewood", 20'000);
            if (!isAdult) sim.setStage(isChild ? stageNumber::teen : stageNumber::adult, {});
        }
        saves += read.isDirty() ? 1 : 0;
        read.save(files_.path().c_str());
    };
    const auto play = [&] {
        for (int changes = below(6); changes >= 0; --changes) {
            const std::string file = std::string("game/UserData") + (below(2) == 0 ? "/Characters/User" : "2/House") +
                                     std::to_string(below(9));
            const fs::path path = files_.path(file);
            constexpr auto writable = fs::perms{0222};
            if (fs::exists(path)) fs::permissions(path, writable, fs::perm_options::add);
            if (!fs::exists(path) || below(3) == 0)
                files_.write(file, std::to_string(random()).substr(0, random() % 9));
            if (below(3) == 0) fs::last_write_time(path, fs::last_write_time(path) - std::chrono::hours(below(99)));
            if (below(4) == 0) {
                fs::remove(path);
            } else if (below(4) == 0) {
                fs::permissions(path, writable, fs::perm_options::remove);
            }
        }
        save(below(2) == 0 ? "UserData" : "UserData3");
    };
    std::map<std::string, std::map<std::string, Whole>> states;
    std::vector<std::string> names;
    for (int sessions = 0; sessions < 8; ++sessions) {
        play();
        names.push_back(make().name);
        states[names.back()] = whole();
    }
    for (int turn = 0; turn < 12; ++turn) {
        play();
        const auto before = whole();
        const std::string& name = names[static_cast<std::size_t>(below(8))];
        const GoneBack there = goBackTo(name);
        ASSERT_EQ(there.error, "");
        EXPECT_EQ(whole(), states[name]) << name;
        ASSERT_EQ(goBackTo(there.present.name).error, "");
        EXPECT_EQ(whole(), before);
    }
    EXPECT_GT(saves, 5);
}

TEST_F(GoingBackTest, WhatACutOffGoingBackNeedsIsKept) {
    const std::string target = make().name, before = make().name, third = make().name;
    ASSERT_TRUE(writeNote(points(), {target, before, gameOf(game())}));
    EXPECT_FALSE(deleteRestorePoint(points(), target) || deleteRestorePoint(points(), before));
    EXPECT_TRUE(deleteRestorePoint(points(), third));
    ASSERT_TRUE(writeNote(points(), {target, before, "/gone/"}));
    EXPECT_NE(goBackTo(target).error.find("/gone/"), std::string::npos) << "the note of a game that is away";
    EXPECT_TRUE(unfinishedGoingBack(points()));
    ASSERT_TRUE(writeNote(points(), {target, before, gameOf(game())}));
    EXPECT_NE(goBackTo(target).error, "");
    files_.remove("points/" + target + "/" + "UserData2");
    EXPECT_TRUE(finishGoingBack(points(), Finish::complete).isBetween) << "it can still be undone";
    files_.remove("points/" + before);
    EXPECT_NE(finishGoingBack(points(), Finish::undo).error.find("The files stay as they are."), std::string::npos);
    EXPECT_FALSE(unfinishedGoingBack(points()));
}

TEST_F(GoingBackTest, WhatOthersChangedMeanwhileIsInAPoint) {
    for (const Finish how : {Finish::complete, Finish::undo}) {
        const std::string target = make().name;
        files_.write(live, "before going back");
        const std::string before = make().name;
        files_.write(live, "by another program");
        ASSERT_TRUE(writeNote(points(), {target, before, gameOf(game())}));
        const GoneBack finished = finishGoingBack(points(), how, nextMinute());
        EXPECT_EQ(files_.bytesOf(live),
                  files_.bytesOf("points/" + (how == Finish::undo ? before : target) + "/UserData/neighborhood.iff"));
        EXPECT_EQ(files_.bytesOf("points/" + finished.present.name + "/UserData/neighborhood.iff"),
                  bytesFrom("by another program"));
        EXPECT_EQ(point(target).sessionEnded, how == Finish::complete);
    }
}

TEST_F(GoingBackTest, ANoteThatCannotBeReadIsSpokenOfOnceAndKept) {
    files_.write("points/going-back.txt", "target ");
    const AnsweredBox said = answerNextBox(IDOK), again = answerNextBox(IDOK);
    EXPECT_TRUE(finishEarlier({points(), game()}) && finishEarlier({points(), game()}));
    EXPECT_TRUE(said->shown && !again->shown);
    EXPECT_EQ(files_.bytesOf("points/going-back.damaged.txt"), bytesFrom("target "));
}

TEST_F(GoingBackTest, AFileIsNotPutWhereADirectoryIsNorTheOtherWayRound) {
    const std::string made = make().name, houses = "game/UserData/Houses";
    const Tree points = treeOf(files_.path("points"));
    files_.write(std::string(live) + ".tidewright-old0", "an old version without a backup");
    fs::remove_all(files_.path(houses));
    files_.write(houses, "a file");
    EXPECT_NE(goBackTo(made).error, "");
    files_.remove(houses);
    files_.write(houses + "/House01.iff/a.txt", "in a directory");
    EXPECT_NE(goBackTo(made).error, "");
    EXPECT_EQ(treeOf(files_.path("points")), points) << "no note, and no point of the present";
    EXPECT_TRUE(files_.exists(std::string(live) + ".tidewright-old0")) << "nothing is cleared away";
}

TEST_F(GoingBackTest, AnotherGameIsRefusedByBothNamesBeforeAnyQuestion) {
    const std::string made = make().name, other = files_.path("other") + "\\";
    files_.write("other/UserData/neighborhood.iff", "of another game");
    const AnsweredBox refused = answerNextBox(IDOK);
    EXPECT_FALSE(goBackAfterQuestion({points(), other}, point(made), allNeighborhoods));
    EXPECT_NE(refused->text.find(game()), std::string::npos) << refused->text;
    EXPECT_NE(refused->text.find(other), std::string::npos);
    EXPECT_EQ(files_.bytesOf("other/UserData/neighborhood.iff"), bytesFrom("of another game"));
}

}  // namespace
