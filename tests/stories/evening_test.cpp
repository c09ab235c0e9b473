// An evening of a player: everything that the window offers, two saves, and what stands there the next day.
#include <gtest/gtest.h>

#include <algorithm>

#include "platform/win32.h"
#include "shell/main_window.h"
#include "tests/platform/scoped_variable.h"
#include "tests/stories/desktop.h"
#include "tests/stories/installation.h"
#include "tests/support/iff_walk.h"
#include "tests/support/native/spoken.h"
#include "tests/support/tree.h"
#include "tests/support/user.h"
#include "ui/controls.h"
#include "ui/cursors.h"
#include "world/neighborhoods.h"

namespace {

// "Name Family: stage; funds" of a Sim in the lists, or "none".
std::string lineOf(int neighborhood, int family, int sim) {
    pickEntry(controls().neighborhoodCombo, neighborhood);
    pickEntry(controls().familyCombo, family);
    if (sim >= SendMessageA(controls().simCombo, CB_GETCOUNT, 0, 0)) return "none";
    pickEntry(controls().simCombo, sim);
    std::string line = spokenDescription(controls().mainWindow);
    std::replace(line.begin(), line.end(), '\n', ' ');
    const Family& picked = *neighborhoods[static_cast<std::size_t>(neighborhood)]->family(family);
    return line.substr(line.find("Name: ")) + "; " + std::to_string(picked.funds());
}

TEST_F(Stories, AnEveningOfPlay) {
    const Tree before = treeOf(prefix());
    {
        const Desktop desktop;
        RunningProgram program(prefix(), toolDirectory(), &desktop);
        program.pick(2, 0, 0);  // a look around
        program.pick(1, 1, 1);

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
    }

    const ScopedVariable winePrefix("WINEPREFIX", prefix());
    loadCursors();
    loadNeighborhoods("C:\\Program Files (x86)\\Maxis\\The Sims\\", toolDirectory().c_str());
    later([] {
        const struct {
            int neighborhood, family, sim;
            const char* line;
        } rows[] = {
            {0, 0, 1, "Name: Bramble Thistlewood Stage: adult; 42500"},
            {0, 0, 2, "Name: Clover Thistlewood Stage: teenager; 42500"},
            {0, 0, 3, "Name: Fern Thistlewood Stage: teenager; 42500"},
            {0, 1, 0, "Name: Antonia QA Stage: adult; 4000"},
            {0, 2, 0, "Name: Se\xF1or Cr\xE8me Stage: adult; 0"},
            {0, 5, 0, "Name: Hazel Thistlewood Stage: adult; 20000"},
            {0, 6, 0, "Name: Quill QA Stage: adult; 20000"},
            {0, 7, 0, "Name: Zo\xEB Cr\xE8me Stage: adult; 10000"},
            {1, 0, 3, "Name: Barnaby Featherstonehaugh-Wetherby Stage: adult; 120000"},
            {2, 0, 3, "Name: Minnow Marsh Stage: child; 12345"},
        };
        for (const auto& row : rows)
            EXPECT_EQ(lineOf(row.neighborhood, row.family, row.sim), row.line);
        EXPECT_EQ(SendMessageA(controls().familyCombo, CB_GETCOUNT, 0, 0), 3);
        PostQuitMessage(0);
    });
    runMainWindow(SW_SHOWNORMAL);

    for (const auto& [name, bytes] : treeOf(prefix())) {
        if (!name.ends_with(".iff")) continue;
        EXPECT_EQ(walkIff(bytes).fault, "") << name;
        EXPECT_EQ(name.find("TMP"), std::string::npos) << name;
    }
}

}  // namespace
