#include "start/mending.h"

#include "platform/win32.h"
#include "restore/restore_points.h"
#include "start/evening_steps.h"
#include "tests/start/evening_game.h"
#include "world/program_files.h"

namespace {

TEST_F(EveningTest, WhatIsSupersededIsDeletedAfterAQuestionAndAllElseIsKept) {
    box_.reset();
    const std::string live = "neighborhood.iff", temporary = "TMPneighborhood.iff", kept = "What you changed then ";
    const std::string old = "Left over from saves that were cut off, and of no use any more: UserData\\" + temporary +
                            ". The game's own files are whole, and the same or newer.\n\n[OK] ";
    const auto writeNew = [&] { write(temporary, bytesFrom("some")); };
    const auto makeOld = [&] {
        fs::last_write_time(files().path("UserData/" + temporary), hourAgo_ - std::chrono::hours(1));
    };
    const auto writeOld = [&] { writeNew(), makeOld(); };
    const auto writeWhole = [&] { write(temporary, makeNeighborhoodFile({.map = false}).bytes); };
    const auto breakLive = [&] { write(live, Bytes(5000)); };
    const std::tuple<const char*, std::function<void()>, int, std::string, bool, bool, std::int64_t> rows[] = {
        {"no wish to delete it", writeOld, IDCANCEL, old, false, false, 3},
        {"just named", writeOld, IDOK, old, true, true, 3},
        {"named at an earlier start", writeOld, IDOK, "", false, false, 1},
        {"newer, but the same", [&] { write(temporary, bytesOf(live)); }, IDOK, old, true, false, 3},
        {"newer", writeNew, IDOK, kept, false, false, 3},
        {"older, but whole", [&] { writeWhole(), makeOld(); }, IDOK, kept, false, false, 3},
        {"newer, and just named", writeNew, IDOK, "", false, true, 3},
        {"the file isn't whole", [&] { writeOld(), breakLive(); }, IDOK, kept, false, false, 3},
        {"the file itself", [&] { files().link("UserData/" + temporary, "UserData/" + live); }, IDOK, kept, false,
         false, 3},
        {"beside another", [&] { writeOld(), write("~part1.tmp", {1}); }, IDOK, "~part1.tmp. " + kept, true, false, 3},
    };
    for (const auto& [what, leave, answer, said, isDeleted, areNamed, hours] : rows) {
        SCOPED_TRACE(what);
        start();
        leave();
        const Tree before = treeOf(files().path("UserData"));
        const AnsweredBox box = answerNextBox(answer);
        nameHarmless(game(), begin_ - hours * 3600, areNamed, false);
        EXPECT_TRUE(box->shown != said.empty() && box->text.find(said) != std::string::npos) << box->text;
        EXPECT_EQ(differences(before, treeOf(files().path("UserData"))), isDeleted ? temporary + "\n" : "");
    }
    start(), writeOld();
    nameHarmless(game(), 0, false, true);
    const AnsweredBox asked = answerNextBox(IDOK, breakLive), said = answerNextBox(IDOK);
    nameHarmless(game(), 0, false, false);
    EXPECT_EQ(said->text, "These files couldn't be deleted: UserData\\" + temporary + ".");
}

TEST_F(EveningTest, WithoutARestorePointAFileIsPutBackAfterASecondQuestion) {
    box_.reset();
    for (const int answer : {IDCANCEL, IDOK}) {
        start();
        fs::rename(files().path("UserData/neighborhood.iff"), files().path("UserData/TMPneighborhood.iff"));
        files().write(restorePointsDirectory, "no directory");
        const AnsweredBox offer = answerNextBox(IDOK), without = answerNextBox(answer);
        mend(game(), false);
        EXPECT_TRUE(without->text.ends_with("TMPneighborhood.iff be put back without one?")) << without->text;
        EXPECT_EQ(files().exists("UserData/neighborhood.iff"), answer == IDOK);
    }
}

TEST_F(EveningTest, TheLastEveningIsToldByAWholePointThatIsNotFromTheFuture) {
    box_.reset();
    const auto make = [&](int year, PointReason reason = PointReason::evening) {
        SYSTEMTIME time = presentTime();
        time.wYear = static_cast<WORD>(year);
        return makeRestorePoint(restorePointsDirectory, game(), reason, time).name;
    };
    const auto cut = [&](const std::string& point) {
        files().write(restorePointsDirectory + ("/" + point + "/UserData/neighborhood.iff"), "cut");
    };
    const std::pair<std::function<void(const std::string&)>, std::string> rows[] = {
        {[&](const auto&) { make(2003, PointReason::goingBack); },
         "The last evening was cut off. Neighborhood 1 is as follows: "},
        {cut, "The last evening was cut off, and what became of it can't be told: its restore point isn't whole. "}};
    for (const auto& [change, said] : rows) {
        start();
        const std::string last = make(2002);
        EXPECT_TRUE(noteSessionEnded(restorePointsDirectory, make(2099)));
        change(last);
        save();
        const AnsweredBox box = answerNextBox(IDCANCEL);
        const LastEvening evening = settleLastEvening(game(), false);
        EXPECT_TRUE(evening.wasCutOff && box->text.starts_with(said)) << box->text;
        EXPECT_EQ(evening.begin / (std::int64_t{366} * 24 * 3600), 2002 - 1970);
        EXPECT_FALSE(settleLastEvening(game(), false).wasCutOff) << "settled";
    }
    start(), files().write("UserData2/House01.iff", "on another disk");
    make(2002), files().remove("UserData2");
    const AnsweredBox box = answerNextBox(IDCANCEL);
    EXPECT_FALSE(settleLastEvening(game(), false).isSettled);
    EXPECT_NE(box->text.find("UserData2 is missing."), std::string::npos) << box->text;
}

}  // namespace
