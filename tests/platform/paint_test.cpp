// Drawing: what appears where, and for how long.
#include <gtest/gtest.h>

#include <set>

#include "tests/platform/test_window.h"
#include "tests/support/user.h"

namespace {

using Pixels = std::set<std::pair<int, int>>;  // x and y, from left to right

// The pixels that a text covers when it is drawn at 20, 20 of an empty window, in a rectangle 300 wide.
Pixels inkOf(const char* text, UINT format = DT_LEFT) {
    TestWindow window;
    window.paint = [&](HDC dc) {
        RECT rectangle{20, 20, 320, 220};
        DrawTextA(dc, text, -1, &rectangle, format);
    };
    window.show();
    const Picture picture = pictureOf(window.handle);
    Pixels ink;
    for (int x = 0; x < picture.width; ++x)
        for (int y = 0; y < picture.height; ++y)
            if (picture.at(x, y) != picture.at(0, 0)) ink.insert({x, y});
    return ink;
}

}  // namespace

TEST(PaintTest, OnlyWhatWaitsIsErasedAndDrawn) {
    HDC const splash = CreateCompatibleDC(nullptr);
    HANDLE const bitmap = LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDB_SPLASH), IMAGE_BITMAP, 0, 0, 0);
    SelectObject(splash, bitmap);
    TestWindow window;
    window.show();
    const std::uint32_t ground = pictureOf(window.handle).at(50, 50);
    EXPECT_TRUE(BitBlt(GetDC(window.handle), 0, 0, 598, 400, splash, 0, 0, SRCCOPY));
    const Picture full = pictureOf(window.handle);
    EXPECT_NE(full.at(50, 50), ground);

    const auto expectInside = [&](BOOL erase, auto expected) {
        const RECT part{40, 40, 60, 60};
        InvalidateRect(window.handle, &part, erase);
        UpdateWindow(window.handle);
        const Picture seen = pictureOf(window.handle);
        for (const auto& [x, y] : {std::pair(40, 40), {59, 59}})
            EXPECT_EQ(seen.at(x, y), expected(x, y));
        for (const auto& [x, y] : {std::pair(39, 40), {40, 39}, {60, 59}, {59, 60}})
            EXPECT_EQ(seen.at(x, y), full.at(x, y));
    };
    expectInside(FALSE, [&](int x, int y) { return full.at(x, y); });
    expectInside(TRUE, [&](int, int) { return ground; });
    window.paint = [&](HDC dc) { BitBlt(dc, -200, -100, 598, 400, splash, 0, 0, SRCCOPY); };
    expectInside(TRUE, [&](int x, int y) { return full.at(x + 200, y + 100); });
}

TEST(PaintTest, TextsAreDrawnAsWindowsReadsThem) {
    for (const auto& [one, other] : {std::pair("abc&", "abc&&"), {"a\nb", "a\r\nb"}, {"a\rb", "a\nb"}}) {
        EXPECT_FALSE(inkOf(one).empty());
        EXPECT_EQ(inkOf(one), inkOf(other)) << one;
    }
    EXPECT_GT(inkOf("Q&&A").rbegin()->first, inkOf("QA").rbegin()->first) << "two marks draw one";
    EXPECT_NE(inkOf("\xE9"), inkOf("e"));
    const Pixels plain = inkOf("abc");
    Pixels marked = inkOf("a&bc");
    std::erase_if(marked, [&](const auto& pixel) { return plain.contains(pixel); });
    EXPECT_FALSE(marked.empty());
    EXPECT_LT(marked.rbegin()->first - marked.begin()->first, 20) << "a line under one letter";

    const Pixels centered = inkOf("wide", DT_CENTER);
    EXPECT_LT(inkOf("wide").begin()->first, 24);
    EXPECT_NEAR(centered.begin()->first + centered.rbegin()->first, 2 * 170, 4);
    EXPECT_LE(inkOf("wwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwww").rbegin()->first, 319);
}
