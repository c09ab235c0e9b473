// Drawing: what appears where, for how long, and what a screen reader hears of it.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "resources/ids.h"
#include "tests/platform/test_window.h"
#include "tests/support/user.h"

namespace {

// The splash picture of the resources, ready to be copied.
struct PictureInMemory {
    HANDLE bitmap = LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDB_SPLASH), IMAGE_BITMAP, 0, 0, 0);
    HDC dc = CreateCompatibleDC(nullptr);
    HGDIOBJ before = SelectObject(dc, bitmap);

    bool copyTo(HDC target, int x, int y) const { return BitBlt(target, x, y, 598, 400, dc, 0, 0, SRCCOPY) != FALSE; }
    void copyTo(HWND window, int x, int y) const {
        HDC const target = GetDC(window);
        EXPECT_TRUE(copyTo(target, x, y));
        EXPECT_EQ(ReleaseDC(window, target), 1);
    }
};

void update(HWND window, const RECT& part, BOOL erase) {
    InvalidateRect(window, &part, erase);
    UpdateWindow(window);
}

// The pixels that a text covers when it is drawn at 20, 20 of an empty window, in a rectangle of 300 x `height`.
struct Ink {
    std::set<std::pair<int, int>> pixels;
    int left = 9999, right = 0, bottom = 0, height = 0;
};

Ink inkOf(const char* text, UINT format = DT_LEFT, int count = -1, int height = 200) {
    Ink ink;
    TestWindow window;
    window.paint = [&](HDC dc) {
        RECT rectangle{20, 20, 320, 20 + height};
        ink.height = DrawTextA(dc, text, count, &rectangle, format);
    };
    window.show();
    const Picture picture = pictureOf(window.handle);
    for (int x = 0; x < picture.width; ++x) {
        for (int y = 0; y < picture.height; ++y) {
            if (picture.at(x, y) == picture.at(0, 0)) continue;
            ink.pixels.insert({x, y});
            ink.left = std::min(ink.left, x);
            ink.right = std::max(ink.right, x);
            ink.bottom = std::max(ink.bottom, y);
        }
    }
    return ink;
}

}  // namespace

TEST(PaintTest, OnlyWhatWaitsIsErasedAndDrawn) {
    TestWindow window;
    window.show();
    const std::uint32_t ground = pictureOf(window.handle).at(50, 50);
    const PictureInMemory splash;
    splash.copyTo(window.handle, 0, 0);
    const Picture full = pictureOf(window.handle);
    EXPECT_NE(full.at(50, 50), ground);
    update(window.handle, {40, 40, 60, 60}, FALSE);
    EXPECT_EQ(pictureOf(window.handle).pixels, full.pixels) << "nobody asked for erasing";

    const auto expectInside = [&](auto expected) {
        update(window.handle, {40, 40, 60, 60}, TRUE);
        const Picture seen = pictureOf(window.handle);
        for (const auto& [x, y] : {std::pair(40, 40), {59, 59}})
            EXPECT_EQ(seen.at(x, y), expected(x, y));
        for (const auto& [x, y] : {std::pair(39, 40), {40, 39}, {60, 59}, {59, 60}})
            EXPECT_EQ(seen.at(x, y), full.at(x, y));
    };
    expectInside([&](int, int) { return ground; });
    window.paint = [&splash](HDC dc) { EXPECT_TRUE(splash.copyTo(dc, -200, -100)); };
    expectInside([&](int x, int y) { return full.at(x + 200, y + 100); });

    EXPECT_FALSE(DeleteObject(splash.bitmap)) << "a context still holds it";
    EXPECT_EQ(SelectObject(splash.dc, splash.before), splash.bitmap);
    EXPECT_TRUE(DeleteObject(splash.bitmap));
    EXPECT_TRUE(DeleteDC(splash.dc));
    EXPECT_FALSE(splash.copyTo(splash.dc, 0, 0));
}

TEST(PaintTest, APictureOnTheScreenStaysUntilItsPlaceIsDrawnAnew) {
    TestWindow window({150, 100, 598, 435});
    window.addControl("Button", "Covered", WS_VISIBLE, 1, {10, 10, 100, 30});
    window.show();
    const std::uint32_t ground = pictureOf(window.handle).at(300, 420);
    const PictureInMemory splash;
    const TestWindow elsewhere;
    splash.copyTo(elsewhere.handle, 0, 0);
    const Picture original = pictureOf(elsewhere.handle);

    splash.copyTo(HWND{}, 150, 100);
    splash.copyTo(HWND{}, -598, 0);  // where no window lies
    const Picture shown = pictureOf(window.handle);
    EXPECT_EQ(shown.width * 1000 + shown.height, 598435);
    for (const auto& [x, y] : {std::pair(0, 0), {60, 25}, {300, 200}, {400, 399}})
        EXPECT_EQ(shown.at(x, y), original.at(x, y)) << x << ", " << y;
    EXPECT_EQ(shown.at(300, 400), ground);
    update(window.handle, {0, 405, 598, 435}, TRUE);
    EXPECT_EQ(pictureOf(window.handle).pixels, shown.pixels);
    update(window.handle, {0, 200, 598, 201}, TRUE);
    EXPECT_EQ(pictureOf(window.handle).at(300, 199), original.at(300, 199));
    EXPECT_EQ(pictureOf(window.handle).at(300, 200), ground);
}

TEST(PaintTest, TextsAreDrawnAsWindowsReadsThem) {
    const struct {
        const char* what;
        Ink one, other;
    } same[] = {
        {"a mark at the end", inkOf("abc&"), inkOf("abc")}, {"a count", inkOf("abcdef", DT_LEFT, 3), inkOf("abc")},
        {"line breaks", inkOf("a\nb"), inkOf("a\r\nb")},    {"a bare CR", inkOf("a\rb"), inkOf("a\nb")},
        {"a break at the end", inkOf("a\n"), inkOf("a")},   {"a tabulator", inkOf("a\tb"), inkOf("a b")},
    };
    for (const auto& row : same) {
        SCOPED_TRACE(row.what);
        EXPECT_FALSE(row.one.pixels.empty());
        EXPECT_EQ(row.one.pixels, row.other.pixels);
        EXPECT_EQ(row.one.height, row.other.height);
    }
    EXPECT_EQ(inkOf("a\nb\n\nc").height, 4 * inkOf("a").height);
    EXPECT_EQ(inkOf("").height, 0);
    EXPECT_GT(inkOf("Q&&A").right, inkOf("QA").right) << "two marks draw one";
    EXPECT_NE(inkOf("\xE9").pixels, inkOf("e").pixels);

    const Ink plain = inkOf("abc");
    Ink marked = inkOf("a&bc");
    EXPECT_TRUE(std::includes(marked.pixels.begin(), marked.pixels.end(), plain.pixels.begin(), plain.pixels.end()));
    std::erase_if(marked.pixels, [&](const auto& pixel) { return plain.pixels.contains(pixel); });
    EXPECT_FALSE(marked.pixels.empty());
    for (const auto& [x, y] : marked.pixels)
        EXPECT_GE(y, plain.bottom) << "a line under one letter";
}

TEST(PaintTest, TextsKeepToTheirRectangle) {
    const Ink centered = inkOf("wide", DT_CENTER);
    EXPECT_LT(inkOf("wide").left, 24);
    EXPECT_NEAR((centered.left + centered.right) / 2, 170, 2);
    EXPECT_LE(inkOf("wide\nand deep", DT_LEFT, -1, 9).bottom, 28);
    EXPECT_LE(inkOf("wwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwww").right, 319);
}

TEST(PaintTest, DrawnTextsAreSpoken) {
    const char* name = "Name: Zo\xEB &Goth";
    TestWindow window;
    window.paint = [&name](HDC dc) {
        const std::pair<RECT, const char*> texts[] = {{{10, 10, 400, 30}, "Pick a Family: "},
                                                      {{10, 40, 400, 60}, "Pick a Sim: "},
                                                      {{420, 40, 500, 60}, "(3)"},
                                                      {{10, 130, 400, 160}, name}};
        for (auto [place, text] : texts)
            DrawTextA(dc, text, -1, &place, DT_LEFT);
    };
    HWND const family = window.addControl("ComboBox", "", WS_VISIBLE, 1, {160, 10, 200, 200});
    HWND const sim = window.addControl("ComboBox", "", WS_VISIBLE, 2, {160, 40, 200, 200});
    window.show();
    EXPECT_EQ(spokenName(family), "Pick a Family:");
    EXPECT_EQ(spokenName(sim), "Pick a Sim:");
    EXPECT_EQ(spokenDescription(window.handle), "Pick a Family:\nPick a Sim:\n(3)\nName: Zo\xEB Goth");
    name = "Name: none";
    update(window.handle, {0, 120, 600, 160}, TRUE);
    EXPECT_EQ(spokenDescription(window.handle), "Pick a Family:\nPick a Sim:\n(3)\nName: none");
}

TEST(PaintTest, ACursorStaysUntilTheArrowComesBack) {
    HCURSOR const arrow = LoadCursorA(nullptr, IDC_ARROW);
    HCURSOR const wait = LoadCursorA(nullptr, IDC_WAIT);
    EXPECT_EQ(SetCursor(wait), arrow);
    EXPECT_EQ(SetCursor(wait), wait);
    EXPECT_TRUE(waitCursorShows());
    EXPECT_EQ(SetCursor(arrow), wait);
    EXPECT_FALSE(waitCursorShows());
}
