// The menu, the accelerators, and the keys that pass through the message queue.
#include <gtest/gtest.h>

#include "tests/platform/test_window.h"
#include "tests/support/user.h"

TEST(MenuTest, AnItemPostsItsCommand) {
    TestWindow window;
    window.show();
    window.takeLog();
    const struct {
        std::initializer_list<const char*> path;
        const char* command;
    } rows[] = {
        {{"File", "Save"}, "command 32771 0"},
        {{"Help", "Online help", "Frequently Asked Questions"}, "command 32777 0"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.command);
        EXPECT_TRUE(chooseMenu(window.handle, row.path));
        EXPECT_EQ(window.takeLog(), Log{}) << "posted, not sent";
        runMessages();
        EXPECT_EQ(window.takeLog(), Log{row.command});
    }

    chooseMenu(window.handle, {"File", "Save"});
    PostQuitMessage(4);
    int exitCode = 0;
    EXPECT_TRUE(runMessages(&exitCode));
    EXPECT_EQ(exitCode, 4);
    EXPECT_EQ(window.takeLog(), Log{"command 32771 0"}) << "it comes before the quit";
}

TEST(MenuTest, AnAcceleratorKeepsItsKeyFromTheControl) {
    TestWindow window;
    window.show();
    HACCEL const accelerators = LoadAcceleratorsA(nullptr, MAKEINTRESOURCEA(IDR_MAIN_ACCELERATORS));
    HWND const combo = window.addControl("ComboBox", "", CBS_DROPDOWNLIST | WS_VISIBLE, 7, {160, 10, 200, 200});
    for (const char* const entry : {"Goth", "/ slash"})
        SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry));
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
