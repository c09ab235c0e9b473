// The menu, the accelerators, and the keys that pass through the message queue.
#include <gtest/gtest.h>

#include "resources/ids.h"
#include "tests/platform/test_window.h"
#include "tests/support/user.h"

namespace {

class MenuTest : public testing::Test {
 protected:
    MenuTest() {
        window.show();
        window.takeLog();
    }

    // What comes of a user's act while the program's loop runs.
    Log after(std::function<void()> act) {
        later(std::move(act));
        runMessages(nullptr, window.handle, accelerators);
        return window.takeLog();
    }

    TestWindow window{IDR_MAIN_MENU};
    HACCEL accelerators = LoadAcceleratorsA(nullptr, MAKEINTRESOURCEA(IDR_MAIN_ACCELERATORS));
};

}  // namespace

TEST_F(MenuTest, AnItemPostsItsCommand) {
    const struct {
        std::initializer_list<const char*> path;
        const char* command;
    } rows[] = {
        {{"File", "Save"}, "command 32771 0"},
        {{"File", "Exit Without Saving"}, "command 105 0"},
        {{"Help", "Online help", "Frequently Asked Questions"}, "command 32777 0"},
        {{"Help", "Donate", "Support TDW with a small donation"}, "command 32776 0"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.command);
        EXPECT_TRUE(chooseMenu(window.handle, row.path));
        EXPECT_EQ(window.takeLog(), Log{}) << "posted, not sent";
        runMessages();
        EXPECT_EQ(window.takeLog(), Log{row.command});
    }
    EXPECT_FALSE(chooseMenu(window.handle, {"File", "Print"}));
}

TEST_F(MenuTest, APostedCommandComesBeforeTheQuit) {
    chooseMenu(window.handle, {"File", "Save"});
    PostQuitMessage(4);
    int exitCode = 0;
    EXPECT_TRUE(runMessages(&exitCode));
    EXPECT_EQ(exitCode, 4);
    EXPECT_EQ(window.takeLog(), Log{"command 32771 0"});

    chooseMenu(window.handle, {"File", "Save"});
    DestroyWindow(window.handle);
    PostQuitMessage(0);
    MSG message{};
    EXPECT_EQ(GetMessageA(&message, nullptr, 0, 0), FALSE) << "what was posted to a window goes with it";
}

TEST_F(MenuTest, AltAndTheCharacterOfATableEntryGiveItsCommand) {
    const struct {
        char key;
        Hold hold;
        Log expected;
    } rows[] = {
        {'/', Hold::alt, {"command 104 1"}},
        {'?', Hold::altShift, {"command 104 1"}},
        {'/', Hold::nothing, {}},
        {'.', Hold::alt, {}},
        {'x', Hold::alt, {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.key);
        EXPECT_EQ(after([&] { pressKey(window.handle, row.key, row.hold); }), row.expected);
    }
}

TEST_F(MenuTest, AnAcceleratorKeepsItsKeyFromTheControl) {
    HWND const combo = window.addControl("ComboBox", "", CBS_DROPDOWNLIST | WS_VISIBLE, 7, {160, 10, 200, 200});
    for (const char* const entry : {"Goth", "/ slash"})
        SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry));
    pickEntry(combo, 0);
    window.takeLog();
    EXPECT_EQ(after([&] { pressKey(window.handle, '/', Hold::alt); }), Log{"command 104 1"});
    EXPECT_EQ(SendMessageA(combo, CB_GETCURSEL, 0, 0), 0);
    EXPECT_EQ(after([&] { pressKey(window.handle, '/'); }), Log{"command 7 1"}) << "typing finds the entry";
    EXPECT_EQ(SendMessageA(combo, CB_GETCURSEL, 0, 0), 1);
}

TEST_F(MenuTest, KeysStillReachButtonsAndMenus) {
    HWND const button = window.addControl("Button", "Grow", WS_VISIBLE, 5, {10, 300, 100, 30});
    clickButton(button);
    window.takeLog();
    EXPECT_EQ(after([&] { pressKey(window.handle, ' '); }), Log{"command 5 0"}) << "the one clicked has the keyboard";
    later([&] { pressKey(window.handle, 'f', Hold::alt); });
    EXPECT_EQ(after([&] { pressKey(window.handle, 's'); }), Log{"command 32771 0"});
}
