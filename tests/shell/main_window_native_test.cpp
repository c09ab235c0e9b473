// What a screen reader says of the main window.
#include <gtest/gtest.h>

#include "shell/main_window.h"
#include "tests/support/native/spoken.h"
#include "tests/support/user.h"
#include "ui/controls.h"
#include "ui/cursors.h"

TEST(MainWindowNativeTest, EachControlIsSpokenByItsLabel) {
    loadCursors();
    later([] {
        const Controls& all = controls();
        EXPECT_EQ(spokenName(all.neighborhoodCombo), "Pick a Neighborhood:");
        EXPECT_EQ(spokenName(all.familyCombo), "Pick a Family:");
        EXPECT_EQ(spokenName(all.simCombo), "Pick a Sim:");
        EXPECT_EQ(spokenName(all.moveOutButton), "Move Out");
        PostQuitMessage(0);
    });
    runMainWindow(SW_SHOWNORMAL);
}
