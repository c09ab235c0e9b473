// The whole road of one Sim: the built program is started, used through mouse and keyboard and ended, and then every
// byte of the installation is compared with what must stand there.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <sstream>

#include "tests/stories/desktop.h"
#include "tests/stories/installation.h"
#include "tests/support/tree.h"

namespace {

namespace fs = std::filesystem;

// The text that dates a neighborhood's backup made now: no leading zeros.
std::string dateNow() {
    const std::time_t now = std::time(nullptr);
    std::tm utc{};
    gmtime_r(&now, &utc);
    char text[32];
    std::snprintf(text, sizeof text, "%d%d%d.%d%d", utc.tm_year + 1900, utc.tm_mon + 1, utc.tm_mday, utc.tm_hour,
                  utc.tm_min);
    return text;
}

// Bramble of the Thistlewoods as a fit adult of light skin, slot by slot, "-" for an empty one. Her head is the only
// one of its skin set.
BodySlots brambleGrownUp() {
    std::istringstream words(
        "b002fafit_01,BODY B002FAFitlgt_mom01 c004fa_gma1,HEAD-HEAD c004falgt_asian HEAD Top R_HAND Palm - - - - - "
        "female 27 lgt nffit_01,BODY nffitlgt_01 nffit_01,BODY uffitlgt_lguard01 "
        "HuLO,HAND huaolgt HuRO,HAND huaolgt HuLP,HAND huaplgt HuRP,HAND huaplgt HuLC,HAND huaclgt HuRC,HAND huaclgt "
        "- - - - fffit_01,BODY fffitlgt_01 HuLO,HAND huaolgt HuRO,HAND huaolgt "
        "F100fafit_original,BODY F100fafitlgt_original S100fafit_original,BODY S100fafitlgt_original "
        "L100fafit_original,BODY L100fafitlgt_original - -");
    BodySlots slots;
    for (std::string& slot : slots)
        if (words >> slot && slot == "-") slot.clear();
    return slots;
}

// Her record as the program writes it: grown up, and zero in every byte that it doesn't know.
Bytes brambleRecord(SampleNeighbor neighbor) {
    neighbor.age = 27;
    neighbor.personValues[27] = neighbor.personValues[28] = 0;
    neighbor.gapByte = 0;
    Bytes record = sampleNeighborRecord(neighbor);
    record.resize(186);
    for (const std::size_t unknown : {17, 18, 19, 20, 21, 23, 24, 25, 26, 27, 28, 29})
        record[unknown] = 0;
    return record;
}

TEST_F(Stories, ATeenGrowsUpAndIsSaved) {
    const Tree before = treeOf(prefix());
    const Desktop desktop;
    const std::string minuteBefore = dateNow();
    {
        RunningProgram program(prefix(), toolDirectory(), &desktop);
        program.pick(0, 0, 2);
        program.clickTeenToAdult();
        program.chooseFileItem('s');
        program.closeWindow();
        EXPECT_EQ(program.waitForExit(), 0) << program.errorOutput();
    }
    const std::string minuteAfter = dateNow();

    const SampleNeighborhood content = castNeighborhoodFile(0, sampleCast()[0]);
    const auto bramble = std::ranges::find(content.neighbors, "user00013", &SampleNeighbor::recordName);
    ASSERT_NE(bramble, content.neighbors.end());
    const NeighborhoodFile built = makeNeighborhoodFile(content);
    const std::string userData = fs::relative(game(), prefix()).string() + "/UserData/";

    Tree expected = before;
    Bytes neighborhood = expected.at(userData + "Neighborhood.iff");
    ASSERT_EQ(neighborhood, built.bytes);
    overwrite(neighborhood, built.neighborOffsets[static_cast<std::size_t>(bramble - content.neighbors.begin())],
              brambleRecord(*bramble));

    Bytes character = treeOf(toolDirectory()).at("Template.iff");
    overwrite(character, 3988, bytesFrom("user00013"));
    overwrite(character, 4080, ByteWriter().u32Le(bramble->guid).written());
    overwrite(character, 4349, ByteWriter().field("Bramble", 64).written());
    overwrite(character, 54097, bytesFrom("adult"));
    overwrite(character, 54102, filledSampleBodyText(brambleGrownUp(), BodyEnding::atEntry32, 1041));

    // A file that is replaced takes the name that the program spells, in small letters.
    const Tree after = treeOf(prefix());
    const std::string minute =
        after.contains(userData + "Backups/neighborhood." + minuteBefore + ".iff") ? minuteBefore : minuteAfter;
    expected[userData + "Backups/neighborhood." + minute + ".iff"] = expected.at(userData + "Neighborhood.iff");
    expected[userData + "Characters/Backups/user00013." + minute.substr(0, minute.find('.')) + ".iff"] =
        expected.at(userData + "Characters/User00013.iff");
    expected.erase(userData + "Neighborhood.iff");
    expected.erase(userData + "Characters/User00013.iff");
    expected[userData + "neighborhood.iff"] = neighborhood;
    expected[userData + "Characters/user00013.iff"] = character;
    EXPECT_EQ(differences(expected, after), "");

    // The next start takes her for an adult, and has nothing to ask about at the end.
    RunningProgram again(prefix(), toolDirectory(), &desktop);
    again.pick(0, 0, 2);
    again.expectOnlyMoveOut();
    again.closeWindow();
    EXPECT_EQ(again.waitForExit(), 0);
    EXPECT_EQ(differences(after, treeOf(prefix())), "");
}

TEST_F(Stories, ARefusedStartTellsWhy) {
    const struct {
        std::string missing;
        int code;
        std::string title;
    } rows[] = {
        {"", 0, ""},  // the window itself can't be created
        {toolDirectory() + "/skinsets.cfg", -4, "Missing Config Files"},
        {game() / "GameData/Skins/xskin-c601fa_amanda-HEAD-HEAD.skn", -3, "Installation Problem"},
        {prefix() + "/system.reg", -1, "Cannot find The Sims"},
    };
    const Desktop desktop;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.missing);
        if (!row.missing.empty()) fs::remove(row.missing);
        if (windowsProgram == nullptr) {
            RunningProgram program(prefix(), toolDirectory(), nullptr);
            EXPECT_EQ(program.waitForExit(), row.code);
            EXPECT_EQ(program.errorOutput().substr(0, program.errorOutput().find('\n')), row.title);
        } else if (!row.title.empty()) {  // Windows always has a display for a window or a box
            RunningProgram program(prefix(), toolDirectory(), &desktop);
            program.answerBox(row.title, "Return");
            EXPECT_EQ(program.waitForExit(), row.code);
        }
    }
}

TEST_F(Stories, TheProgramDoesNotStartBesideTheGame) {
    const Desktop desktop;
    // What has the game's title is a second Tidewright whose window is given it; under Wine, the window in which the
    // file manager shows the directory of that name.
    const bool wine = windowsProgram != nullptr;
    RunningProgram other(prefix(), wine ? game().string() : toolDirectory(), &desktop, wine ? "explorer ." : nullptr);
    const std::string window = desktop.act("search --onlyvisible --name '^(Tidewright|The Sims)$'");
    desktop.act("set_window --name 'The Sims' " + window);
    RunningProgram program(prefix(), toolDirectory(), &desktop);
    program.answerBox("Exit The Sims", "Return");
    EXPECT_EQ(program.waitForExit(), -2);
    desktop.act("windowkill " + window);
}

}  // namespace
