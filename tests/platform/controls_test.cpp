// Combo boxes and buttons: what the user sees and what their window receives.
#include <gtest/gtest.h>

#include "tests/platform/test_window.h"
#include "tests/support/user.h"

namespace {

constexpr int none = -1;

class ControlsTest : public testing::Test {
 protected:
    ControlsTest() { window.show(); }

    static int selection(HWND box) { return static_cast<int>(SendMessageA(box, CB_GETCURSEL, 0, 0)); }

    TestWindow window;
};

}  // namespace

TEST_F(ControlsTest, EveryPickIsReportedAlsoOfTheSameEntry) {
    HWND const box = window.addCombo({"a", "Q&A", "caf\xE9 \x80"});
    EXPECT_EQ(SendMessageA(box, CB_GETCOUNT, 0, 0), 3);
    EXPECT_EQ(entryText(box, 1) + entryText(box, 2), "Q&Acaf\xE9 \x80");
    EXPECT_EQ(selection(box), none) << "nothing was picked";
    window.takeLog();
    for (const int entry : {1, 1, 2, 0}) {
        pickEntry(box, entry);
        EXPECT_EQ(window.takeLog(), Log{"command 7 1"});
        EXPECT_EQ(selection(box), entry);
    }
}

TEST_F(ControlsTest, ADeletionKeepsTheSelectedEntrySelectedUnlessItIsThatOne) {
    const struct {
        const char* what;
        int selected, deleted, left, afterwards;
    } rows[] = {
        {"the selected one", 1, 1, 2, none},       {"one above", 2, 0, 2, 1},          {"one below", 0, 2, 2, 0},
        {"without a selection", none, 0, 2, none}, {"no such entry", 1, 3, CB_ERR, 1}, {"wild", 1, -1, CB_ERR, 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        HWND const box = window.addCombo({"a", "b", "c"});
        if (row.selected != none) pickEntry(box, row.selected);
        window.takeLog();
        EXPECT_EQ(SendMessageA(box, CB_DELETESTRING, static_cast<WPARAM>(row.deleted), 0), row.left);
        EXPECT_EQ(selection(box), row.afterwards);
        EXPECT_EQ(window.takeLog(), Log{}) << "only a user's pick is reported";
        DestroyWindow(box);
    }
}

TEST_F(ControlsTest, AButtonsStyleSaysWhetherItCanBeClicked) {
    HWND const button = window.addControl("Button", "&Move Out", WS_VISIBLE | WS_DISABLED, 2010, {10, 300, 100, 30});
    constexpr DWORD hidden = WS_CHILD, enabled = WS_CHILD | WS_VISIBLE, disabled = enabled | WS_DISABLED;
    for (const DWORD style : {disabled, enabled, disabled, enabled, hidden, enabled}) {
        SetWindowLongA(button, GWL_STYLE, static_cast<LONG>(style));
        window.takeLog();
        clickButton(button);
        EXPECT_EQ(window.takeLog(), style == enabled ? Log{"command 2010 0"} : Log{});
    }
}
