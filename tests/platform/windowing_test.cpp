// Windows, controls, menus, keys and boxes: what a window receives, and what the user sees of it.
#include <algorithm>
#include <tuple>

#include "tests/platform/window_test.h"

namespace {

using WindowingTest = WindowTest;

TEST_F(WindowingTest, MessagesComeInWindowsOrder) {
    HWND const button = addButton(1);
    EXPECT_EQ(takeLog(), (Log{"create", "paint"}));
    EXPECT_TRUE(chooseMenu(window_, {"File", "Save"}));
    InvalidateRect(window_, nullptr, TRUE);
    PostQuitMessage(4);
    EXPECT_EQ(takeLog(), Log{}) << "posted, not sent";
    EXPECT_TRUE(runMessages());
    EXPECT_EQ(takeLog(), Log{"command 32771 0"}) << "drawn after all else";
    UpdateWindow(window_);
    closeWindow(window_);
    runMessages();
    EXPECT_EQ(takeLog(), (Log{"paint", "close", "destroy"}));
    EXPECT_FALSE(IsWindow(button));
}

TEST_F(WindowingTest, OnlyWhatWaitsIsErasedAndDrawn) {
    HDC const splash = CreateCompatibleDC(nullptr);
    SelectObject(splash, LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDB_SPLASH), IMAGE_BITMAP, 0, 0, 0));
    const std::uint32_t ground = pictureOf(window_).at(50, 50);
    EXPECT_TRUE(BitBlt(GetDC(window_), 0, 0, 598, 400, splash, 0, 0, SRCCOPY));
    const Picture full = pictureOf(window_);
    EXPECT_EQ(full.at(10, 10), 0x101735U);
    EXPECT_EQ(full.at(10, 390), 0x36294CU);

    const auto expectInside = [&](BOOL erase, auto expected) {
        const RECT one{-50, 40, 50, 60};  // to the left there is nothing
        const RECT other{40, 40, 60, 60};
        InvalidateRect(window_, &one, erase);
        InvalidateRect(window_, &other, FALSE);  // takes nothing back
        UpdateWindow(window_);
        EXPECT_EQ(painted_, (std::vector<int>{0, 40, 60, 60}));
        const Picture seen = pictureOf(window_);
        for (const auto& [x, y] : {std::pair(40, 40), {59, 59}, {40, 39}, {60, 59}, {59, 60}})
            EXPECT_EQ(seen.at(x, y), x == y ? expected(x, y) : full.at(x, y)) << x << " " << y;
    };
    expectInside(FALSE, [&](int x, int y) { return full.at(x, y); });
    expectInside(TRUE, [&](int, int) { return ground; });
    paint_ = [&](HDC dc) { BitBlt(dc, -200, -100, 598, 400, splash, 0, 0, SRCCOPY); };
    expectInside(TRUE, [&](int x, int y) { return full.at(x + 200, y + 100); });
}

TEST_F(WindowingTest, TextsAreDrawnAsWindowsReadsThemInTheUsersColors) {
    const auto drawn = [this](const std::string& text) {
        paint_ = [text](HDC dc) {
            RECT place{20, 20, 120, 220};
            DrawTextA(dc, text.c_str(), -1, &place, DT_LEFT);
        };
        InvalidateRect(window_, nullptr, TRUE);
        UpdateWindow(window_);
        return pictureOf(window_).pixels;
    };
    for (const auto& [one, other] : {std::pair("abc&", "abc&&"), {"a\nb", "a\r\nb"}, {"a\rb", "a\nb"}})
        EXPECT_TRUE(drawn(one) == drawn(other)) << one;
    for (const auto& [one, other] : {std::pair("Q&&A", "QA"), {"a&bc", "abc"}, {"\xE9", "e"}, {"a\nb", "b\na"}})
        EXPECT_FALSE(drawn(one) == drawn(other)) << one;
    EXPECT_TRUE(drawn(std::string(60, 'w')) == drawn(std::string(80, 'w'))) << "clipped";
    const auto bare = [&drawn](const char* text) {
        const auto pixels = drawn(text);
        return std::ranges::count(pixels, pixels.front());
    };
    EXPECT_EQ(bare("\xC5\x8A"), bare("\n\xC5\x8A")) << "the first line has room for tall letters too";

    drawn("Name: IIII");
    chooseColors(0x000040, 0xFFFF40);
    runMessages();
    const Picture seen = pictureOf(window_);
    chooseColors(0xFFFFFF, 0x000000);
    EXPECT_EQ(seen.at(0, 0), 0x000040U);
    EXPECT_GT(std::ranges::count(seen.pixels, 0xFFFF40U), 0);
    EXPECT_EQ(std::ranges::count(seen.pixels, 0xFFFFFFU), 0) << "they lie on the window's color";
}

TEST_F(WindowingTest, APickByMouseOrKeyIsReportedAndADeletionIsNot) {
    HWND const box = addCombo({"a", "Q&A", "/ caf\xE9 \x80"});
    pickEntry(box, 1);
    pickEntry(box, 1);
    later([&] { pressKey(window_, '/'); });
    runMessages();
    Log seen = takeLog();
    std::erase(seen, "paint");  // Windows asks for what the list covered
    EXPECT_EQ(seen, (Log{"create", "command 7 1", "command 7 1", "command 7 1"}));
    constexpr int none = -1;
    for (const auto& [deleted, left, selected] : {std::tuple(3, CB_ERR, 2), {0, 2, 1}, {1, 1, none}, {0, 0, none}}) {
        EXPECT_EQ(SendMessageA(box, CB_DELETESTRING, static_cast<WPARAM>(deleted), 0), left);
        EXPECT_EQ(SendMessageA(box, CB_GETCURSEL, 0, 0), selected);
    }
    EXPECT_EQ(takeLog(), Log{});
}

TEST_F(WindowingTest, ABoxBlocksItsOwnerWhichIsStillDrawn) {
    HWND const button = addButton(3);
    const char* const text = "Caf\xE9 & <b>bar</b>!  Two blanks.\nA second line with &mark.";
    for (HWND const given : {window_, HWND{}}) {
        SetCursor(LoadCursorA(nullptr, IDC_WAIT));
        takeLog();
        SetFocus(button);
        bool waitCursor = true;
        const AnsweredBox box = answerNextBox(answerByEscape, [&] {
            waitCursor = waitCursorShows();
            clickButton(button);
            closeWindow(window_);
            InvalidateRect(window_, nullptr, TRUE);
        });
        EXPECT_EQ(MessageBoxA(given, text, "Proceed? \x80", MB_OKCANCEL), IDCANCEL);
        EXPECT_EQ(box->title + box->text, std::string("Proceed? \x80") + text);
        EXPECT_EQ(takeLog(), Log{"paint"});
        EXPECT_FALSE(waitCursor) << "over a box the program doesn't wait";
        EXPECT_TRUE(waitCursorShows());
        EXPECT_EQ(GetFocus(), button);
        clickButton(button);
        EXPECT_EQ(takeLog(), Log{"command 3 0"});
    }
    SetCursor(LoadCursorA(nullptr, IDC_ARROW));
}

}  // namespace
