#include "start/report.h"

#include <chrono>

#include "start/cut_off.h"
#include "start/left_overs.h"
#include "start/neighbor_records.h"
#include "start/readiness.h"
#include "tests/start/evening_game.h"
#include "ui/sentence_parts.h"

namespace {

constexpr char news[] =
    "Clover Thistlewood is a teenager now. Bramble Thistlewood moved into a household of her own, with 20,000.";

TEST(WordsTest, LongNumbersAndListsAreReadable) {
    EXPECT_EQ(withCommas(999) + withCommas(1000) + withCommas(-123'456) + withCommas(1'234'567),
              "9991,000-123,4561,234,567");
    EXPECT_EQ(listed({"Ann"}) + listed({"Ann", "Bob"}) + listed({"Ann", "Bob", "Cleo"}),
              "AnnAnn and BobAnn, Bob and Cleo");
    EXPECT_TRUE(listed(std::vector<std::string>(31, "Ann")).ends_with("Ann and Ann"));
    EXPECT_TRUE(listed(std::vector<std::string>(32, "Ann")).ends_with("Ann, Ann and 2 more"));
}

TEST_F(EveningTest, ASaveIsReportedByNamesAndChecked) {
    const std::string begin = "Neighborhood 1: ", aside = "UserData/Characters/user00001.iff.tidewright-old0";
    const auto saveTwiceWithoutBackups = [&] {
        for (const char* const backups : {"Backups", "Characters/Backups"})
            write(backups, bytesFrom("no directory"));
        save(true, false);
        EXPECT_TRUE(files().exists(aside) && !reportOn(evening()).hasLoss);
        save(false);
        EXPECT_FALSE(files().exists(aside));
        files().remove("UserData/neighborhood.iff.tidewright-old0");  // as a third save that finds no room
    };
    const auto saveBesideUnknownForm = [&] {
        save(true, false);
        Bytes file = bytesOf("Characters/user00003.iff");
        std::ranges::replace(file, 0xA3, 0xA4);  // no pattern ends the body strings any more
        write("Characters/user00003.iff", file);
        files().write("before/UserData/Characters/user00003.iff", file);
    };
    const std::string checked =
        "\n\nChecked: 2 new files, whole to the end. Names, GUIDs and stages are right, and no family and no Sim is "
        "missing.";
    const std::tuple<const char*, bool, std::function<void()>, std::string> rows[] = {
        {"of a later edition", true, [&] { save(); }, begin + news + checked},
        {"two saves", false, saveTwiceWithoutBackups, begin + news + checked},
        {"beside a file that would open a box", false, saveBesideUnknownForm,
         begin + "Clover Thistlewood is a teenager now." + checked},
        {"the copy can't be read", false, [&] { save(), files().remove("before/UserData/neighborhood.iff"); },
         "Neighborhood 1 was saved. The copy from before can't be read, so nothing could be checked."},
    };
    for (const auto& [what, ofLaterEditions, change, said] : rows) {
        SCOPED_TRACE(what);
        start({.freeRoom = true}, ofLaterEditions);
        change();
        const EveningReport report = reportOn(evening());
        EXPECT_EQ(report.text, said);
        EXPECT_TRUE(report.hasSaved && !report.hasLoss && checkReadiness(game(), true).isReady());
    }
}

TEST_F(EveningTest, WhatIsLostIsReported) {
    const std::string sim = "Characters/user00001.iff", live = "neighborhood.iff";
    const std::string wrong = "Neighborhood 1: something is wrong. ";
    const std::string age = "Clover Thistlewood has a new body, but the record in neighborhood.iff is of another age.";
    const std::tuple<const char*, std::function<void()>, std::string> rows[] = {
        {"a Sim's file is cut", [&] { fs::resize_file(files().path("UserData/" + sim), 54'500); },
         wrong + "user00001.iff ends inside the chunk at 54016."},
        {"the neighborhood file is cut", [&] { fs::resize_file(files().path("UserData/" + live), 300); },
         "neighborhood.iff ends inside the chunk at 64."},
        {"a name is another", [&] { patch(sim, 4349, "Hemlock"); },
         wrong + "user00001.iff has the name Hemlock instead of Clover."},
        {"a GUID is another", [&] { patch(sim, 4080, "????"); }, "Clover Thistlewood has another GUID than before."},
        {"a member is no Sim's", [&] { patch(live, test_->built().families[0].memberTable + 4, "????"); },
         wrong + "Rowan Thistlewood belongs to no family any more."},
        {"the new body is no teenager's",
         [&] { patch(sim, nextTag(bytesOf(sim), "TNR", nextTag(bytesOf(sim), "TNR", 0) + 1), "fit"); }, age},
        {"the record is the old one", [&] { bringBack(live, live); }, age},
        {"a temporary file is left", [&] { write("TMP" + live, bytesFrom("cut")); },
         "Neighborhood 1: TMPneighborhood.iff is left over from a save that was cut off."},
        {"a Move Out cut off families",
         [&] {
             start({.families = {{.number = 2, .name = "XXXX Lane"}, {.number = 3, .name = "Moss"}}});
             save(false);
         },
         "The families XXXX Lane and Moss are gone."},
        {"and Sims", [&] { start({.before = {{.type = "XXXX"}}}), save(false); },
         "The family Thistlewood is gone. 3 Sims are gone: Clover Thistlewood, Bramble "},
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

TEST_F(EveningTest, WithoutASaveNothingIsSaidUnlessItWasPreventedOrTheGameSaved) {
    const std::string live = "neighborhood.iff", backup = "Backups/neighborhood.20261124.2154.iff";
    const std::string played = "The game saved Neighborhood 1 while Tidewright was open";
    const std::string notSaved = "; what you changed in it was not saved.";
    const auto playBesideOldBackup = [&] {
        write(backup, {});
        fs::last_write_time(files().path("UserData/" + backup), hourAgo_ - std::chrono::hours(24));
        patch(live, 500, "?");
    };
    const auto setAside = [&] { write(live + ".tidewright-old0", bytesFrom("of an earlier evening")); };
    const auto build = [&] { write("Houses/House02.iff", bytesFrom("built")); };
    const std::tuple<const char*, std::function<void()>, std::function<void()>, int, std::string> rows[] = {
        {"nothing", [] {}, [] {}, 0, ""},
        {"no save could work", [&] { files().link("UserData/TMP" + live, "UserData/" + live); }, [] {}, 0,
         "Nothing was saved. "},
        {"the game has saved", [] {}, playBesideOldBackup, 0, played + notSaved},
        {"a disk with a clock that is behind", [] {}, playBesideOldBackup, 600, played + notSaved},
        {"so it is, but the editor has saved", [] {}, [&] { save(false); }, 600,
         "Neighborhood 1: Bramble Thistlewood "},
        {"a house is new", setAside, build, 0, played + "."},
        {"the neighborhood, too", setAside, [&] { build(), patch(live, 500, "?"); }, 0, played + notSaved},
    };
    for (const auto& [what, before, change, seconds, said] : rows) {
        SCOPED_TRACE(what);
        start();
        before();
        Evening one = evening();
        for (const LeftOver& leftOver : findLeftOvers(game()))
            one.known.push_back(leftOver.sentence);
        change();
        one.begin += seconds;
        const EveningReport report = reportOn(one);
        EXPECT_TRUE(said.empty() ? report.text.empty() : report.text.starts_with(said)) << report.text;
        EXPECT_EQ(report.wasPlayed, said.starts_with(played));
        EXPECT_EQ(report.hasSaved, said.starts_with("Neighborhood 1: "));
        EXPECT_FALSE(report.hasLoss);
    }
}

TEST_F(EveningTest, AnEveningThatWasCutOffIsDescribed) {
    const std::string begin = "The last evening was cut off. Neighborhood 1 is as follows: ";
    const std::string between =
        begin +
        "a save was cut off between the Sims and the neighborhood file, so these Sims must not grow up now. Clover "
        "Thistlewood has a new body, but the record in neighborhood.iff is of another age.";
    const std::string live = "neighborhood.iff";
    const std::tuple<const char*, std::function<void()>, std::string, bool> rows[] = {
        {"only an earlier save left something", [&] { bringBack(live, "TMP" + live); }, "", false},
        {"nothing was saved, and the game was played", [&] { write("Houses/House01.iff", bytesFrom("played")); }, "",
         true},
        {"an earlier save has set something aside",
         [&] { write(live + ".tidewright-old0", bytesOf(live)), write("Houses/House01.iff", bytesFrom("played")); }, "",
         true},
        {"this one did", [&] { write("TMP" + live, bytesFrom("cut")); },
         begin + "TMPneighborhood.iff is left over from a save that was cut off. It does no harm; you may delete it.",
         false},
        {"killed after the save", [&] { save(); }, begin + "it was saved as a whole. " + news, false},
        {"killed behind the Sims", [&] { save(true, false), bringBack(live, live); }, between, false},
        {"played afterwards",
         [&] { save(true, false), bringBack(live, live), write("Houses/House01.iff", bytesFrom("played")); },
         between + " The game has saved since, and going back would undo that, too.", true},
        {"killed between the renames",
         [&] {
             save(), bringBack(live, live + ".tidewright-old0");
             fs::rename(files().path("UserData/" + live), files().path("UserData/TMP" + live));
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
        EXPECT_EQ(cutOff.isWhole, said.empty() || said.ends_with(news));
        EXPECT_EQ(cutOff.wasPlayedSince, played);
    }
}

}  // namespace
