// The menu, the accelerators, and the keys that pass through the message queue.
#include <gtest/gtest.h>

#include "tests/platform/test_window.h"
#include "tests/support/user.h"

TEST(MenuTest, AnItemPostsItsCommandBeforeTheQuit) {
    TestWindow window;
    window.show();
    window.takeLog();
    EXPECT_TRUE(chooseMenu(window.handle, {"File", "Save"}));
    EXPECT_TRUE(chooseMenu(window.handle, {"Help", "Online help", "Frequently Asked Questions"}));
    PostQuitMessage(4);
    EXPECT_EQ(window.takeLog(), Log{}) << "posted, not sent";
    int exitCode = 0;
    EXPECT_TRUE(runMessages(&exitCode));
    EXPECT_EQ(exitCode, 4);
    EXPECT_EQ(window.takeLog(), (Log{"command 32771 0", "command 32777 0"}));
}

TEST(MenuTest, AnAcceleratorKeepsItsKeyFromTheControl) {
    TestWindow window;
    window.show();
    HACCEL const accelerators = LoadAcceleratorsA(nullptr, MAKEINTRESOURCEA(IDR_MAIN_ACCELERATORS));
    HWND const combo = window.addCombo({"Goth", "/ slash"});
    pickEntry(combo, 0);
    runMessages();
    window.takeLog();
    const struct {
        char key;
        Hold hold;
        Log expected;
        int selected;
    } rows[] = {
        {'/', Hold::alt, {"command 104 1"}, 0},
        {'/', Hold::nothing, {"command 7 1"}, 1},  // typing finds the entry
        {'.', Hold::alt, {}, 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.key);
        later([&] { pressKey(window.handle, row.key, row.hold); });
        runMessages(nullptr, window.handle, accelerators);
        EXPECT_EQ(window.takeLog(), row.expected);
        EXPECT_EQ(SendMessageA(combo, CB_GETCURSEL, 0, 0), row.selected);
    }
}
