// Drawing: what appears where, and for how long.
#include <gtest/gtest.h>

#include <set>

#include "tests/platform/test_window.h"
#include "tests/support/user.h"

namespace {

// A text at 20, 20 of a window, in a rectangle 300 wide.
Picture drawn(const std::string& text, UINT format = DT_LEFT) {
    TestWindow window;
    window.paint = [&](HDC dc) {
        RECT rectangle{20, 20, 320, 220};
        DrawTextA(dc, text.c_str(), -1, &rectangle, format);
    };
    window.show();
    return pictureOf(window.handle);
}

// The columns in which they differ.
std::set<int> difference(const Picture& one, const Picture& other = drawn("")) {
    std::set<int> columns;
    for (int i = 0; i < one.width * one.height; ++i)
        if (one.at(i, 0) != other.at(i, 0)) columns.insert(i % one.width);
    return columns;
}

}  // namespace

TEST(PaintTest, OnlyWhatWaitsIsErasedAndDrawn) {
    HDC const splash = CreateCompatibleDC(nullptr);
    SelectObject(splash, LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDB_SPLASH), IMAGE_BITMAP, 0, 0, 0));
    TestWindow window;
    window.show();
    const std::uint32_t ground = pictureOf(window.handle).at(50, 50);
    EXPECT_TRUE(BitBlt(GetDC(window.handle), 0, 0, 598, 400, splash, 0, 0, SRCCOPY));
    const Picture full = pictureOf(window.handle);
    EXPECT_EQ(full.at(10, 10), 0x101735U);
    EXPECT_EQ(full.at(10, 390), 0x36294CU);

    const auto expectInside = [&](BOOL erase, auto expected) {
        const RECT part{40, 40, 60, 60};
        InvalidateRect(window.handle, &part, erase);
        InvalidateRect(window.handle, &part, FALSE);  // takes nothing back
        UpdateWindow(window.handle);
        const Picture seen = pictureOf(window.handle);
        for (const auto& [x, y] : {std::pair(40, 40), {59, 59}, {39, 40}, {40, 39}, {60, 59}, {59, 60}})
            EXPECT_EQ(seen.at(x, y), x == y ? expected(x, y) : full.at(x, y)) << x << " " << y;
    };
    expectInside(FALSE, [&](int x, int y) { return full.at(x, y); });
    expectInside(TRUE, [&](int, int) { return ground; });
    window.paint = [&](HDC dc) { BitBlt(dc, -200, -100, 598, 400, splash, 0, 0, SRCCOPY); };
    expectInside(TRUE, [&](int x, int y) { return full.at(x + 200, y + 100); });
}

TEST(PaintTest, TextsAreDrawnAsWindowsReadsThem) {
    for (const auto& [one, other] : {std::pair("abc&", "abc&&"), {"a\nb", "a\r\nb"}, {"a\rb", "a\nb"}})
        EXPECT_TRUE(difference(drawn(one), drawn(other)).empty()) << one;
    EXPECT_GT(*difference(drawn("Q&&A")).rbegin(), *difference(drawn("QA")).rbegin()) << "two marks draw one";
    EXPECT_FALSE(difference(drawn("\xE9"), drawn("e")).empty());
    const auto underline = difference(drawn("a&bc"), drawn("abc"));
    EXPECT_FALSE(underline.empty());
    EXPECT_LT(*underline.rbegin() - *underline.begin(), 20) << "a line under one letter";

    const auto centered = difference(drawn("wide", DT_CENTER));
    EXPECT_NEAR(*centered.begin() + *centered.rbegin(), 2 * 170, 4);
    EXPECT_LT(*difference(drawn("wide")).begin(), 24);
    EXPECT_LE(*difference(drawn(std::string(60, 'w'))).rbegin(), 319) << "clipped";
}
