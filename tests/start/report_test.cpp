#include "start/report.h"

#include <chrono>

#include "start/cut_off.h"
#include "start/neighbor_records.h"
#include "start/readiness.h"
#include "tests/start/evening_game.h"
#include "ui/sentence_parts.h"

namespace {

constexpr char news[] =
    "Neighborhood 1: Clover Thistlewood is a teenager now. Bramble Thistlewood moved into a household of her own, with "
    "20,000.";
constexpr char checkedTwo[] =
    "\n\nChecked: 2 new files, whole to the end. Names, GUIDs and stages are right, and no family and no Sim is "
    "missing.";

TEST(WordsTest, LongNumbersAndListsAreReadable) {
    EXPECT_EQ(withCommas(999) + withCommas(1000) + withCommas(-123'456) + withCommas(1'234'567),
              "9991,000-123,4561,234,567");
    EXPECT_EQ(listed({"Ann"}) + listed({"Ann", "Bob"}) + listed({"Ann", "Bob", "Cleo"}),
              "AnnAnn and BobAnn, Bob and Cleo");
    EXPECT_TRUE(listed(std::vector<std::string>(31, "Ann")).ends_with("Ann and Ann"));
    EXPECT_TRUE(listed(std::vector<std::string>(32, "Ann")).ends_with("Ann, Ann and 2 more"));
}

TEST_F(EveningTest, ASaveIsReportedByNamesAndChecked) {
    start();
    save();
    const EveningReport report = reportOn(evening());
    EXPECT_EQ(report.text, std::string(news) + checkedTwo);
    EXPECT_TRUE(report.hasSaved && !report.hasLoss);
}

TEST_F(EveningTest, AFileOfAnUnknownFormOpensNoBox) {
    start();
    save(true, false);
    Bytes file = bytesOf("Characters/user00003.iff");
    std::ranges::replace(file, 0xA3, 0xA4);  // no pattern ends the body strings any more
    write("Characters/user00003.iff", file);
    files().write("before/UserData/Characters/user00003.iff", file);
    EXPECT_TRUE(reportOn(evening()).text.starts_with("Neighborhood 1: Clover Thistlewood is a teenager now.\n"));
    EXPECT_TRUE(checkReadiness(game()).isReady());
}

TEST_F(EveningTest, WhatIsLostIsReported) {
    const std::string wrong = "Neighborhood 1: something is wrong. ";
    const std::tuple<const char*, std::function<void()>, std::string> rows[] = {
        {"a file of a Sim is cut", [&] { fs::resize_file(files().path("UserData/Characters/user00001.iff"), 54'500); },
         wrong + "user00001.iff ends inside the chunk at 54016."},
        {"the neighborhood file is cut", [&] { fs::resize_file(files().path("UserData/neighborhood.iff"), 300); },
         "neighborhood.iff ends inside the chunk at 64."},
        {"the old file of a Sim is back",
         [&] {
             Bytes file = bytesOf("Characters/user00001.iff");
             overwrite(file, 4349, bytesFrom("Hemlock"));
             overwrite(file, 4080, bytesFrom("????"));
             write("Characters/user00001.iff", file);
         },
         wrong +
             "user00001.iff has the name Hemlock instead of Clover. Clover Thistlewood has another GUID than before."},
        {"a member is no Sim's",
         [&] {
             Bytes file = bytesOf("neighborhood.iff");
             overwrite(file, test_->built().families[0].memberTable + 4, bytesFrom("????"));
             write("neighborhood.iff", file);
         },
         wrong + "Rowan Thistlewood belongs to no family any more."},
        {"the new body is no teenager's",
         [&] {
             Bytes file = bytesOf("Characters/user00001.iff");
             const std::size_t mesh = nextTag(file, "TNR", 0);
             overwrite(file, nextTag(file, "TNR", mesh + 1), bytesFrom("fit"));
             write("Characters/user00001.iff", file);
         },
         "Clover Thistlewood has a new body, but the record in neighborhood.iff is of another age."},
        {"the record is the old one",
         [&] { write("neighborhood.iff", files().bytesOf("before/UserData/neighborhood.iff")); },
         "Clover Thistlewood has a new body, but the record in neighborhood.iff is of another age."},
        {"a temporary file is left", [&] { write("TMPneighborhood.iff", bytesFrom("cut")); },
         "Neighborhood 1: TMPneighborhood.iff is left over from a save that was cut off."},
    };
    for (const auto& [what, damage, said] : rows) {
        SCOPED_TRACE(what);
        start();
        save();
        damage();
        const EveningReport report = reportOn(evening());
        EXPECT_TRUE(report.hasLoss && report.hasSaved);
        EXPECT_NE(report.text.find(said), std::string::npos) << report.text;
        EXPECT_EQ(report.text.find("Checked"), std::string::npos);
    }
}

TEST_F(EveningTest, AMoveOutThatDropsFamiliesIsReported) {
    start({.families = {{.number = 2, .name = "XXXX Lane", .members = {}},
                        {.number = 3, .name = "Moss", .members = {}}}});
    save(false);
    EveningReport report = reportOn(evening());
    EXPECT_NE(report.text.find("The families XXXX Lane and Moss are gone."), std::string::npos) << report.text;
    EXPECT_TRUE(report.hasLoss);

    start({.before = {{.type = "XXXX"}}});
    save(false);
    report = reportOn(evening());
    EXPECT_NE(report.text.find("The family Thistlewood is gone. 3 Sims are gone: Clover Thistlewood, Bramble "),
              std::string::npos)
        << report.text;
}

TEST_F(EveningTest, WithoutASaveNothingIsSaidUnlessItWasPrevented) {
    start();
    EXPECT_EQ(reportOn(evening()).text, "");
    files().link("UserData/TMPneighborhood.iff", "UserData/neighborhood.iff");
    Evening known = evening();
    known.known = {
        "Neighborhood 1: TMPneighborhood.iff is left over from a save that was cut off. That does no harm: "
        "the next save clears it away."};
    EveningReport report = reportOn(known);
    EXPECT_TRUE(report.text.starts_with("Nothing was saved. ") && !report.hasSaved && !report.hasLoss) << report.text;

    start();
    write("Backups/neighborhood.20261124.2154.iff", {});  // of an earlier evening
    fs::last_write_time(files().path("UserData/Backups/neighborhood.20261124.2154.iff"),
                        fs::file_time_type::clock::now() - std::chrono::hours(24));
    Bytes file = bytesOf("neighborhood.iff");
    file.back() ^= 1;
    write("neighborhood.iff", file);
    report = reportOn(evening());
    EXPECT_EQ(report.text,
              "The game saved Neighborhood 1 while Tidewright was open; what you changed in it was not saved.");
    EXPECT_FALSE(report.hasSaved || report.hasLoss);
}

TEST_F(EveningTest, AnEveningThatWasCutOffIsDescribed) {
    const std::string begin = "The last evening was cut off. Neighborhood 1 is as follows: ";
    const std::string between = begin +
                                "a save was cut off between the Sims and the neighborhood file, so these Sims "
                                "must not grow up now. Clover Thistlewood has a new body, but the record in "
                                "neighborhood.iff is of another age.";
    const auto putOldNeighborhoodBack = [&] {
        write("neighborhood.iff", files().bytesOf("before/UserData/neighborhood.iff"));
    };
    const std::tuple<const char*, std::function<void()>, std::string, bool> rows[] = {
        {"nothing was saved", [] {}, "", false},
        {"killed after the save", [&] { save(); },
         begin + "it was saved as a whole. Clover Thistlewood is a teenager now. Bramble Thistlewood moved into a "
                 "household of her own, with 20,000.",
         false},
        {"killed behind the Sims", [&] { save(true, false), putOldNeighborhoodBack(); }, between, false},
        {"played afterwards",
         [&] { save(true, false), putOldNeighborhoodBack(), write("Houses/House01.iff", bytesFrom("played")); },
         between + " The game has saved since, and going back would undo that, too.", true},
        {"killed between the renames",
         [&] {
             save();
             const std::string live = files().path("UserData/neighborhood.iff");
             fs::rename(live, files().path("UserData/TMPneighborhood.iff"));
             write("neighborhood.iff.tidewright-old0", files().bytesOf("before/UserData/neighborhood.iff"));
         },
         begin + "a save was cut off between its last two steps. neighborhood.iff is missing. TMPneighborhood.iff is "
                 "the new version, and whole.",
         false},
    };
    for (const auto& [what, leave, said, played] : rows) {
        SCOPED_TRACE(what);
        start();
        leave();
        const CutOffEvening cutOff = describeCutOff(evening());
        EXPECT_EQ(cutOff.text, said);
        EXPECT_EQ(cutOff.isAsBefore, said.empty());
        EXPECT_EQ(cutOff.wasPlayedSince, played);
    }
}

}  // namespace
