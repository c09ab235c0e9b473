#include "start/mending.h"

#include "platform/win32.h"
#include "restore/restore_points.h"
#include "start/evening_steps.h"
#include "tests/start/evening_game.h"
#include "world/program_files.h"

namespace {

// The player's own directory is that of the game.
class MendingTest : public EveningTest {
 protected:
    MendingTest() { box_.reset(); }
    ~MendingTest() override { box_ = answerNextBox(IDOK); }

    void start() {
        EveningTest::start();
        fs::current_path(files().path());
    }
    void age(const std::string& name) const {
        fs::last_write_time(files().path("UserData/" + name), hourAgo_ - std::chrono::hours(1));
    }
};

TEST_F(MendingTest, WhatIsSupersededIsDeletedAfterAQuestionAndAllElseIsKept) {
    const std::string live = "neighborhood.iff", temporary = "TMPneighborhood.iff", kept = "What you changed then ";
    const std::string old = "Left over from saves that were cut off, and of no use any more: UserData\\" + temporary +
                            ". The game's own files are whole, and the same or newer.\n\n[OK] ";
    const auto leave = [&](const std::string& bytes) { write(temporary, bytesFrom(bytes)), age(temporary); };
    constexpr int hour = 3600;
    const struct {
        const char* what;
        std::function<void()> change;
        int answer;
        std::string said;
        bool isDeleted = false, areNamed = false;
        int since = -3 * hour;
    } rows[] = {
        {"older than the file", [&] { leave("old"); }, IDOK, old, true},
        {"no wish to delete it", [&] { leave("old"); }, IDCANCEL, old},
        {"just named", [&] { leave("old"); }, IDOK, old, true, true},
        {"named at an earlier start", [&] { leave("old"); }, IDOK, "", false, false, -hour},
        {"newer, but the same", [&] { write(temporary, bytesOf(live)); }, IDOK, old, true},
        {"newer", [&] { write(temporary, bytesFrom("new")); }, IDOK, kept},
        {"newer and just named", [&] { write(temporary, bytesFrom("new")); }, IDOK, "", false, true},
        {"the file isn't whole", [&] { leave("old"), write(live, Bytes(5000)); }, IDOK, kept},
        {"the file itself", [&] { files().link("UserData/" + temporary, "UserData/" + live); }, IDOK, kept},
        {"another one is kept", [&] { leave("old"), write("~part1.tmp", bytesFrom("some")); }, IDOK,
         "UserData\\~part1.tmp. " + kept, true},
    };
    for (const auto& [what, change, answer, said, isDeleted, areNamed, since] : rows) {
        SCOPED_TRACE(what);
        start();
        change();
        const Tree before = treeOf(files().path("UserData"));
        const AnsweredBox box = answerNextBox(answer), second = answerNextBox(IDOK);
        nameHarmless(game(), begin_ + since, areNamed, false);
        EXPECT_EQ(box->shown, !said.empty());
        EXPECT_NE(box->text.find(said), std::string::npos) << box->text;
        EXPECT_EQ(differences(before, treeOf(files().path("UserData"))), isDeleted ? temporary + "\n" : "");
        EXPECT_FALSE(second->shown) << second->text;
    }
    start();
    leave("old");
    nameHarmless(game(), 0, false, true);
    EXPECT_TRUE(files().exists("UserData/" + temporary)) << "nothing was asked";
    const AnsweredBox asked = answerNextBox(IDOK, [&] { write(live, Bytes(5000)); }), said = answerNextBox(IDOK);
    nameHarmless(game(), 0, false, false);
    EXPECT_EQ(said->text, "These files couldn't be deleted: UserData\\" + temporary + ".");
    EXPECT_TRUE(files().exists("UserData/" + temporary)) << "the file isn't whole any more";
}

TEST_F(MendingTest, WhereNoRestorePointCanBeMadeTheFileIsPutBackAfterASecondQuestion) {
    for (const bool agrees : {false, true}) {
        start();
        fs::rename(files().path("UserData/neighborhood.iff"), files().path("UserData/TMPneighborhood.iff"));
        files().write(restorePointsDirectory, "no directory");
        const AnsweredBox offer = answerNextBox(IDOK), without = answerNextBox(agrees ? IDOK : IDCANCEL);
        mend(game(), false);
        EXPECT_TRUE(without->text.ends_with("TMPneighborhood.iff be put back without one?")) << without->text;
        EXPECT_EQ(files().exists("UserData/neighborhood.iff"), agrees);
    }
}

TEST_F(MendingTest, TheLastEveningIsToldByAWholePointThatIsNotFromTheFuture) {
    for (const bool isWhole : {true, false}) {
        start();
        SYSTEMTIME time = presentTime();
        const MadePoint last = makeRestorePoint(restorePointsDirectory, game(), PointReason::evening, time);
        time.wYear = 2099;
        const MadePoint future = makeRestorePoint(restorePointsDirectory, game(), PointReason::evening, time);
        EXPECT_TRUE(noteSessionEnded(restorePointsDirectory, future.name));
        if (!isWhole) files().write(restorePointsDirectory + ("/" + last.name + "/UserData/neighborhood.iff"), "cut");
        save();  // which changes the working directory
        fs::current_path(files().path());
        const AnsweredBox box = answerNextBox(IDCANCEL);
        const LastEvening evening = settleLastEvening(game(), false);
        EXPECT_TRUE(evening.wasCutOff && evening.isSettled && evening.begin >= begin_ - 1 &&
                    evening.begin <= std::time(nullptr));
        EXPECT_EQ(box->text.starts_with("The last evening was cut off. Neighborhood 1 is as follows: "), isWhole);
        EXPECT_EQ(box->text.find("can't be told: its restore point isn't whole. ") != std::string::npos, !isWhole);
        EXPECT_FALSE(settleLastEvening(game(), false).wasCutOff) << "settled";
    }
}

}  // namespace
