// A player's evening: everything that the window offers, two saves, and what the program reads the next day.
#include <gtest/gtest.h>

#include <algorithm>
#include <regex>

#include "tests/stories/desktop.h"
#include "tests/stories/installation.h"
#include "tests/support/iff_walk.h"
#include "tests/support/machine.h"
#include "tests/support/scoped_variable.h"
#include "world/neighborhoods.h"

namespace {

TEST_F(Stories, AnEveningOfPlay) {
    const Tree before = treeOf(prefix());
    {
        const Desktop desktop;
        RunningProgram program(prefix(), toolDirectory(), &desktop);
        program.pick(0, 0, 3);
        program.clickChildToTeen();  // Clover, whose head leads to a teen's
        program.pick(0, 0, 4);
        program.clickChildToTeen();  // Fern, whose head is in no set
        program.answerBox("Proceed[?]", "Return");
        program.pick(2, 0, 3);
        program.clickChildToTeen();  // Minnow, the same, but not tonight
        program.answerBox("Proceed[?]", "Escape");
        program.pick(0, 0, 2);
        program.clickTeenToAdult();  // Bramble
        program.pick(1, 0, 3);
        program.clickTeenToAdult();  // Barnaby

        program.pick(0, 0, 0);
        program.clickMoveOut();  // Hazel
        program.pick(0, 1, 0);
        program.clickMoveOut();  // Quill
        EXPECT_TRUE(treeOf(prefix()) == before) << "nothing reaches the disk before the save";
        program.chooseFileItem('s');
        program.pick(0, 3, 0);
        program.clickMoveOut();  // Pip, whose family is poor
        program.answerBox("Insufficient funds", "Return");
        EXPECT_FALSE(treeOf(prefix()) == before);

        program.pick(0, 2, 0);
        program.clickMoveOut();  // Zoe
        program.closeWindow();
        program.answerBox("Exit[?]", "Escape");
        program.chooseFileItem('v');  // save and exit
        EXPECT_EQ(program.waitForExit(), 0) << program.errorOutput();

        RunningProgram again(prefix(), toolDirectory(), &desktop);
        again.pick(0, 0, 1);  // Bramble
        again.expectOnlyMoveOut();
        again.closeWindow();  // with nothing to ask
        EXPECT_EQ(again.waitForExit(), 0);
    }

    const ScopedVariable otherStoriesKeepTheirs("WINEPREFIX", prefix());
    loadNeighborhoods(installGame(prefix()).c_str(), toolDirectory().c_str());
    std::string families;
    for (int i = 0; i < neighborhoods[0]->familyCount(); ++i) {
        Family& family = *neighborhoods[0]->family(i);
        families += family.name() + (" " + std::to_string(family.funds()) + ":");
        for (int k = 0; k < family.memberCount(); ++k)
            families += " " + (family.member(k)->name() + std::to_string(family.member(k)->stage()));
        families += "\n";
    }
    EXPECT_EQ(families,
              "Thistlewood 42500: Rowan6 Bramble6 Clover5 Fern5 Moss3 Biscuit-1 Marmalade-1\n"
              "Q&A 4000: Antonia6\nCr\xE8me 0: Se\xF1or6\nPennyfarthing 850: Pip6 Tuppence6 Farley5\nLarkspur 18000: "
              "Juniper6\n"
              "Thistlewood 20000: Hazel6\nQ&A 20000: Quill6\nCr\xE8me 10000: Zo\xEB"
              "6\n");
    for (const auto& [neighborhood, stage] : {std::pair(1, stageNumber::adult), {2, stageNumber::child}}) {
        Family& family = *neighborhoods[static_cast<std::size_t>(neighborhood)]->family(0);
        ASSERT_GT(family.memberCount(), 3);
        EXPECT_EQ(family.member(3)->stage(), stage) << "Barnaby has grown up, Minnow has not";
    }

    const Tree after = treeOf(prefix());
    for (const auto& [name, bytes] : after) {
        if (!name.ends_with(".iff")) continue;
        EXPECT_EQ(walkIff(bytes).fault, "") << name;
        EXPECT_EQ(name.find("TMP"), std::string::npos) << name;
    }
    for (const auto& [name, bytes] : before) {
        const auto hasTheseBytes = [&old = bytes](const auto& file) { return file.second == old; };
        const bool isSavedTwice = name.ends_with("UserData/Neighborhood.iff");  // with one backup if in one minute
        EXPECT_TRUE(isSavedTwice || std::ranges::any_of(after, hasTheseBytes)) << name << " has no backup";
    }
    const std::regex changed(
        ".*/(UserData2?/(Backups/)?[Nn]eighborhood|UserData/Characters/(Backups/)?[Uu]ser000(13|15|42)|"
        "UserData2/Characters/(Backups/)?[Uu]ser00004)[.0-9]*iff\n");
    EXPECT_EQ(std::regex_replace(differences(before, after), changed, ""), "");
}

}  // namespace
