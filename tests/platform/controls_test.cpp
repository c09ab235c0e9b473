// Combo boxes and buttons, as a user and as their window meet them.
#include <gtest/gtest.h>

#include <chrono>

#include "tests/platform/test_window.h"
#include "tests/support/user.h"

namespace {

constexpr int none = -1;

class ControlsTest : public testing::Test {
 protected:
    ControlsTest() { window.show(); }

    HWND combo(const std::vector<const char*>& entries, int top = 10) const {
        constexpr DWORD style = CBS_DROPDOWNLIST | WS_BORDER | WS_VSCROLL | WS_VISIBLE;
        HWND const made = window.addControl("combobox", "", style, 7, {160, top, 200, 200});
        for (const char* const entry : entries)
            add(made, entry);
        return made;
    }

    static LRESULT add(HWND box, const char* text) {
        return SendMessageA(box, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
    }
    static LRESULT remove(HWND box, int index) {
        return SendMessageA(box, CB_DELETESTRING, static_cast<WPARAM>(index), 0);
    }
    static int selection(HWND box) { return static_cast<int>(SendMessageA(box, CB_GETCURSEL, 0, 0)); }

    TestWindow window;
};

}  // namespace

TEST_F(ControlsTest, AComboBoxHoldsTextsAsTheyAre) {
    const std::vector<const char*> texts = {"Goth", "Q&A", "caf\xE9 \x80", ""};
    HWND const box = combo(texts);
    EXPECT_EQ(SendMessageA(box, CB_GETCOUNT, 0, 0), 4);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(entryText(box, i), texts[static_cast<std::size_t>(i)]);
    EXPECT_EQ(selection(box), none) << "nothing was picked";
}

TEST_F(ControlsTest, EveryPickIsToldAlsoOfTheSameEntry) {
    HWND const box = combo({"a", "b", "c"});
    window.takeLog();
    const struct {
        const char* what;
        std::function<void()> act;
        int selected;
    } rows[] = {
        {"a pick", [&] { pickEntry(box, 1); }, 1},
        {"the same again", [&] { pickEntry(box, 1); }, 1},
        {"the wheel", [&] { turnWheel(box, true); }, 2},
        {"another pick", [&] { pickEntry(box, 0); }, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        row.act();
        EXPECT_EQ(window.takeLog(), Log{"command 7 1"});
        EXPECT_EQ(reinterpret_cast<HWND>(window.sender), box);
        EXPECT_EQ(selection(box), row.selected);
    }
    turnWheel(box, false);
    EXPECT_EQ(window.takeLog(), Log{}) << "there is no entry above the first";
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
        HWND const box = combo({"a", "b", "c"});
        if (row.selected != none) pickEntry(box, row.selected);
        window.takeLog();
        EXPECT_EQ(remove(box, row.deleted), row.left);
        EXPECT_EQ(selection(box), row.afterwards);
        EXPECT_EQ(window.takeLog(), Log{}) << "only a user's pick is told";
        DestroyWindow(box);
    }
}

TEST_F(ControlsTest, AFullListIsEmptiedAtOnceAndAnEmptyOneToo) {
    HWND const box = combo({});
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 820; ++i)
        add(box, "A Sim's name");
    for (int i = 820; i > 0; --i)
        EXPECT_EQ(remove(box, 0), i - 1);
    for (int i = 0; i < 820; ++i)
        EXPECT_EQ(remove(box, 0), CB_ERR);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(500));
    EXPECT_EQ(add(box, "anew"), 0);
    EXPECT_EQ(selection(box), none);
}

TEST_F(ControlsTest, AComboBoxsHeightIsThatOfItsOpenedList) {
    HWND const box = combo(std::vector<const char*>(300, "a"));
    const RECT first = placeOf(box);
    const RECT second = placeOf(combo({"b"}, 40));
    EXPECT_NEAR(openedListHeight(box) + first.bottom - first.top, 200, 20) << "whole rows";
    EXPECT_EQ(sides(first), (std::vector<int>{160, 10, 360, first.bottom}));
    EXPECT_EQ(second.top, 40);
    EXPECT_GT(first.bottom, 25);
    EXPECT_LE(first.bottom, second.top - 2);
}

TEST_F(ControlsTest, AButtonsStyleSaysWhetherItCanBeClicked) {
    HWND const button = window.addControl("Button", "&Move Out", WS_VISIBLE | WS_DISABLED, 2010, {10, 300, 100, 30});
    EXPECT_EQ(textOf(button), "Move Out");
    EXPECT_EQ(sides(placeOf(button)), (std::vector<int>{10, 300, 110, 330}));
    window.takeLog();
    constexpr auto enabled = static_cast<LONG>(WS_CHILD | WS_VISIBLE);
    constexpr auto disabled = static_cast<LONG>(WS_CHILD | WS_VISIBLE | WS_DISABLED);
    constexpr auto hidden = static_cast<LONG>(WS_CHILD);
    LONG before = disabled;
    for (const LONG style : {disabled, enabled, disabled, enabled, hidden, enabled}) {
        EXPECT_EQ(SetWindowLongA(button, GWL_STYLE, style), before);
        EXPECT_EQ(GetWindowLongA(button, GWL_STYLE), style);
        EXPECT_EQ(isEnabled(button), style != disabled);
        EXPECT_EQ(isVisible(button), style != hidden);
        clickButton(button);
        EXPECT_EQ(window.takeLog(), style == enabled ? Log{"command 2010 0"} : Log{});
        before = style;
    }
    EXPECT_EQ(reinterpret_cast<HWND>(window.sender), button);
}
