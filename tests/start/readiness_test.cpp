#include "start/readiness.h"

#include "sample/installation.h"
#include "start/report.h"
#include "tests/start/evening_game.h"

namespace {

TEST_F(EveningTest, TheSampleIsReadyAndTheCheckLeavesNoTrace) {
    const TempDirectory prefix;
    EXPECT_TRUE(writeInstallation(prefix.path("game")));
    const std::string game = gameDirectory(prefix.path("game")).string() + "\\";
    const Tree before = treeOf(prefix.path());
    const Readiness readiness = checkReadiness(game);
    EXPECT_EQ(readiness.text(), "");
    EXPECT_TRUE(readiness.isReady());
    EXPECT_EQ(differences(before, treeOf(prefix.path())), "");
    for (const auto& [made, said] : {std::pair("none", "UserData: please play the game once, and save there."),
                                     {"UserData3", "UserData, so Tidewright doesn't list UserData3."},
                                     {"UserData", "UserData2, so Tidewright doesn't list UserData3."}}) {
        prefix.makeDirectory(made);
        const Readiness found = checkReadiness(prefix.path() + "\\");
        EXPECT_EQ(found.obstacles.size(), 1U) << "what can't be listed prevents no save of the others";
        EXPECT_NE(found.text().find(std::string(" has no directory ") + said), std::string::npos) << found.text();
    }
}

TEST_F(EveningTest, WhatPreventsASaveIsNoReadiness) {
    const std::string data = "UserData/", live = "UserData/neighborhood.iff", characters = "UserData/Characters";
    const std::string deep = "before/" + std::string(60, 'd') + "/" + std::string(60, 'd');
    const std::string sim = characters + "/user00002.iff", without = "A save goes without backups in ";
    const auto cut = [&](const std::string& name) { return [&, name] { fs::resize_file(files().path(name), 1000); }; };
    const auto putFile = [&](const std::string& name) {
        return [&, name] { fs::remove_all(files().path(name)), files().write(name, "file"); };
    };
    const auto moveDown = [&] {
        files().makeDirectory(deep);
        fs::rename(files().path("UserData"), files().path(deep + "/UserData"));
    };
    const auto addLater = [&] {
        Bytes record = ByteWriter().u32Le(1).u32Le(10).u32Le(9).text("user00042").fillTo(700).written();
        ByteWriter records;
        for (const std::uint8_t mode : Bytes{9, 5, 0})
            record[26] = mode, records.bytes(record);
        start({.before = {{.type = "NBRS", .content = records.written()}}});
        EXPECT_EQ(checkReadiness(game(), true).text(), "");
    };
    const std::tuple<const char*, std::function<void()>, bool, std::string> rows[] = {
        {"no neighborhood file", [&] { files().remove(live); }, false,
         "neighborhood.iff is missing or can't be read. The window will list no neighborhood."},
        {"an empty neighborhood file", [&] { files().write(live, ""); }, false, "only part of"},
        {"a neighborhood file that is cut", cut(live), false, "isn't whole: it has bytes left over at 999."},
        {"a Sim's file that is cut", cut(sim), true, "Characters: user00002.iff."},
        {"a directory has the temporary name", [&] { files().makeDirectory(data + "TMPneighborhood.iff"); }, false,
         "neighborhood.iff can't be saved: "},
        {"a Sim's temporary name is a link to the file", [&] { files().link(characters + "/TMPuser00002.iff", sim); },
         false, "user00002.iff in "},
        {"a file in the place of the directory", putFile(characters), false, "can be saved: "},
        {"a file in the place of the backups", putFile(data + "Backups"), true, without},
        {"another one in the place of the Sims' backups", putFile(characters + "/Backups"), true, without},
        {"a path that the editor cuts", moveDown, false, " is too long: "},
        {"Sims of a later edition", addLater, true,
         "Neighborhood 1: 2 Sims of a later edition of the game, which stay closed: the option --editions ask asks "
         "again."},
    };
    for (const auto& [what, damage, ready, said] : rows) {
        SCOPED_TRACE(what);
        start();
        damage();
        const Readiness readiness = checkReadiness(files().exists("UserData") ? game() : files().path(deep) + "\\");
        EXPECT_EQ(readiness.isReady(), ready);
        EXPECT_NE(readiness.text().find(said), std::string::npos) << readiness.text();
    }
}

TEST_F(EveningTest, ASaveThatWasCutOffBehindTheSimsIsSeenByThemAlone) {
    const std::string live = "neighborhood.iff", sim = "Characters/user00001.iff", backups = "Characters/Backups";
    const auto touch = [&](const std::string& name, int hours) {
        fs::last_write_time(files().path("UserData/" + name), hourAgo_ + std::chrono::hours(hours));
    };
    const auto cutOff = [&] { save(), bringBack(live, live); };
    const std::tuple<const char*, std::function<void()>, bool> rows[] = {
        {"cut off", cutOff, true},
        {"saved as a whole", [&] { save(); }, false},
        {"its files copied in another order", [&] { save(), touch(sim, 2); }, false},
        {"the game has written the file", [&] { touch(sim, 2); }, false},
        {"the game has saved since, and then the file", [&] { cutOff(), touch(live, 2), touch(sim, 3); }, false},
        {"there is no backup, and it has saved since",
         [&] { write(backups, bytesFrom("no directory")), cutOff(), touch(live, 2); }, false},
        {"a backup of the same age", [&] { write(backups + "/user00001.x.iff", bytesOf(sim)), touch(sim, 2); }, false},
        {"a grown body without an older version", [&] { write(sim, bytesOf("Characters/user00002.iff")); }, false},
        {"the older version is no child's",
         [&] { cutOff(), write(backups + "/user00001.x.iff", bytesOf("Characters/user00002.iff")); }, false},
    };
    for (const auto& [what, change, isSeen] : rows) {
        SCOPED_TRACE(what);
        start();
        change();
        const std::string text = checkReadiness(game()).text(), said = "Neighborhood 1: a save was cut off ";
        EXPECT_EQ(text.find(said) != std::string::npos, isSeen) << text;
        if (!isSeen) continue;
        const fs::path backup = fs::directory_iterator(files().path("UserData/" + backups))->path().filename();
        EXPECT_EQ(text, said +
                            "between the Sims and the neighborhood file. Clover has a new body and an old record, and "
                            "must not grow up now. Close Tidewright, and copy Characters\\Backups\\" +
                            backup.string() + " to Characters\\user00001.iff first.");
    }
}

TEST_F(EveningTest, AMoveOutThatWouldDropSomethingIsForetold) {
    const SampleFamily moss{.number = 2, .name = "Moss"}, lane{.number = 3, .name = "XXXX Lane"};
    using Built = NeighborhoodFile;
    constexpr auto asBuilt = [](const Built& built) { return built.mapOffset; };
    constexpr auto inLastName = [](const Built& built) { return built.mapOffset - 1; };
    constexpr auto inLastRecord = [](const Built& built) { return built.neighborOffsets[2] + 185; };
    const std::tuple<const char*, SampleNeighborhood, std::size_t (*)(const Built&), std::string> rows[] = {
        {"free room behind all", {.families = {moss}, .freeRoom = true}, asBuilt, ""},
        {"no free room and no map", {.families = {moss}, .map = false}, asBuilt, ""},
        {"the map behind all", {.families = {moss}}, asBuilt, ""},
        {"free room in front of all",
         {.families = {moss}, .before = {{.type = "XXXX"}}},
         asBuilt,
         "drop 3 Sims and the families Thistlewood and Moss"},
        {"a family's name looks like free room",
         {.families = {lane, moss}},
         asBuilt,
         "drop the families XXXX Lane and Moss"},
        {"the map is said to be in a name", {.families = {moss}}, inLastName, "drop the family Moss"},
        {"the map is said to be in a record", {}, inLastRecord, "drop 1 Sim and the family Thistlewood"},
        {"a family that isn't listed is behind",
         {.families = {moss, {.number = 4, .name = "Default"}}},
         inLastName,
         "drop the end of the game's own neighbors and families"},
    };
    for (const auto& [what, shape, mapOffset, loss] : rows) {
        SCOPED_TRACE(what);
        start(shape);
        Bytes file = bytesOf("neighborhood.iff");
        overwrite(file, 60, ByteWriter().u32Be(static_cast<std::int64_t>(mapOffset(test_->built()))).written());
        write("neighborhood.iff", file);
        const std::string text = checkReadiness(game()).text();
        EXPECT_EQ(text, loss.empty() ? ""
                                     : "Neighborhood 1: a save of one Move Out would " + loss +
                                           ". Child to Teen and Teen to Adult drop nothing.");
        save(false);
        EXPECT_EQ(reportOn(evening()).hasLoss, !loss.empty()) << "as it comes";
    }
}

}  // namespace
