// Drawing: what appears where, for how long, and what a screen reader hears of it.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "resources/ids.h"
#include "tests/platform/test_window.h"
#include "tests/support/user.h"

namespace {

constexpr int pictureWidth = 598;
constexpr int pictureHeight = 400;

// The splash picture of the resources, ready to be copied.
class PictureInMemory {
 public:
    PictureInMemory() {
        bitmap_ =
            LoadImageA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDB_SPLASH), IMAGE_BITMAP, 0, 0, LR_DEFAULTCOLOR);
        before_ = SelectObject(dc, bitmap_);
    }
    PictureInMemory(const PictureInMemory&) = delete;
    PictureInMemory& operator=(const PictureInMemory&) = delete;
    ~PictureInMemory() {
        EXPECT_EQ(SelectObject(dc, before_), bitmap_);
        EXPECT_TRUE(DeleteDC(dc));
        EXPECT_TRUE(DeleteObject(bitmap_));
        EXPECT_FALSE(DeleteObject(bitmap_));
    }

    void copyTo(HWND window, int x, int y) const {
        HDC const target = GetDC(window);
        EXPECT_TRUE(BitBlt(target, x, y, pictureWidth, pictureHeight, dc, 0, 0, SRCCOPY));
        EXPECT_EQ(ReleaseDC(window, target), 1);
    }

    HDC dc = CreateCompatibleDC(nullptr);

 private:
    HANDLE bitmap_ = nullptr;
    HGDIOBJ before_ = nullptr;
};

void update(HWND window, const RECT& part, BOOL erase) {
    InvalidateRect(window, &part, erase);
    UpdateWindow(window);
}

// The pixels that a text covers when it is drawn at 20, 20 of an empty window, in a rectangle of 300 x `height`.
struct Ink {
    std::set<std::pair<int, int>> pixels;
    int height = 0;

    int left() const { return pixels.begin()->first; }
    int right() const { return pixels.rbegin()->first; }
    int bottom() const {
        int lowest = -1;
        for (const auto& [x, y] : pixels)
            lowest = std::max(lowest, y);
        return lowest;
    }
};

Ink inkOf(const char* text, UINT format = DT_LEFT, int count = -1, int height = 200) {
    Ink ink;
    TestWindow window([&](HWND handle, UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
        if (message != WM_PAINT) return std::nullopt;
        PAINTSTRUCT paint;
        BeginPaint(handle, &paint);
        RECT rectangle{20, 20, 320, 20 + height};
        ink.height = DrawTextA(paint.hdc, text, count, &rectangle, format);
        EndPaint(handle, &paint);
        return 0;
    });
    window.show();
    const Picture picture = pictureOf(window.handle);
    for (int x = 0; x < picture.width; ++x)
        for (int y = 0; y < picture.height; ++y)
            if (picture.at(x, y) != picture.at(0, 0)) ink.pixels.insert({x, y});
    return ink;
}

}  // namespace

TEST(PaintTest, ErasingFillsOnlyWhatWaitsAndOnlyWhenAsked) {
    TestWindow window;
    window.show();
    const std::uint32_t ground = pictureOf(window.handle).at(50, 50);
    const PictureInMemory splash;
    splash.copyTo(window.handle, 0, 0);
    const Picture full = pictureOf(window.handle);
    EXPECT_NE(full.at(50, 50), ground);

    update(window.handle, {40, 40, 60, 60}, FALSE);
    EXPECT_EQ(pictureOf(window.handle).pixels, full.pixels);
    update(window.handle, {40, 40, 60, 60}, TRUE);
    const Picture erased = pictureOf(window.handle);
    for (const auto& [x, y] : {std::pair(40, 40), {59, 59}})
        EXPECT_EQ(erased.at(x, y), ground);
    for (const auto& [x, y] : {std::pair(39, 40), {40, 39}, {60, 59}, {59, 60}})
        EXPECT_EQ(erased.at(x, y), full.at(x, y));
}

TEST(PaintTest, AnswersToPaintAreLimitedToWhatWaits) {
    const PictureInMemory splash;
    TestWindow window([&splash](HWND handle, UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
        if (message != WM_PAINT) return std::nullopt;
        PAINTSTRUCT paint;
        BeginPaint(handle, &paint);
        BitBlt(paint.hdc, -200, -200, pictureWidth, pictureHeight, splash.dc, 0, 0, SRCCOPY);
        EndPaint(handle, &paint);
        return 0;
    });
    window.show();
    splash.copyTo(window.handle, 0, 0);
    const Picture before = pictureOf(window.handle);
    update(window.handle, {100, 100, 150, 150}, TRUE);
    const Picture after = pictureOf(window.handle);
    EXPECT_EQ(after.at(100, 100), before.at(300, 300)) << "the picture's place moved by 200";
    EXPECT_EQ(after.at(149, 149), before.at(349, 349));
    EXPECT_EQ(after.at(99, 100), before.at(99, 100));
    EXPECT_EQ(after.at(150, 149), before.at(150, 149));
}

TEST(PaintTest, APictureOnTheScreenStaysUntilItsPlaceIsDrawnAnew) {
    TestWindow window({150, 100, 748, 535}, {});
    window.addControl("Button", "Covered", WS_VISIBLE, 1, {10, 10, 110, 40});
    window.show();
    const std::uint32_t ground = pictureOf(window.handle).at(300, 420);
    TestWindow elsewhere;
    const PictureInMemory splash;
    splash.copyTo(elsewhere.handle, 0, 0);
    const Picture original = pictureOf(elsewhere.handle);

    splash.copyTo(nullptr, 150, 100);
    Picture shown = pictureOf(window.handle);
    EXPECT_EQ(shown.width, 598);
    EXPECT_EQ(shown.height, 435);
    for (const auto& [x, y] : {std::pair(0, 0), {60, 25}, {300, 200}, {400, 399}})
        EXPECT_EQ(shown.at(x, y), original.at(x, y)) << x << ", " << y;
    EXPECT_EQ(shown.at(300, 400), ground);

    update(window.handle, {0, 405, 598, 435}, TRUE);
    EXPECT_EQ(pictureOf(window.handle).pixels, shown.pixels);
    update(window.handle, {0, 200, 598, 201}, TRUE);
    shown = pictureOf(window.handle);
    EXPECT_EQ(shown.at(300, 199), original.at(300, 199));
    EXPECT_EQ(shown.at(300, 200), ground);
    splash.copyTo(nullptr, -pictureWidth, 0);  // where no window lies
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
    EXPECT_GT(inkOf("Q&&A").right(), inkOf("QA").right()) << "two marks draw one";
    EXPECT_NE(inkOf("\xE9").pixels, inkOf("e").pixels);
    EXPECT_EQ(inkOf("").height, 0);

    const Ink plain = inkOf("abc");
    const Ink underlined = inkOf("a&bc");
    EXPECT_TRUE(
        std::includes(underlined.pixels.begin(), underlined.pixels.end(), plain.pixels.begin(), plain.pixels.end()));
    std::set<int> rows;
    for (const auto& pixel : underlined.pixels)
        if (!plain.pixels.contains(pixel)) rows.insert(pixel.second);
    EXPECT_TRUE(rows.size() == 1 || rows.size() == 2) << "a line under one letter";
    EXPECT_GE(*rows.begin(), plain.bottom());
}

TEST(PaintTest, TextsKeepToTheirRectangle) {
    const Ink left = inkOf("wide");
    const Ink centered = inkOf("wide", DT_CENTER);
    EXPECT_LT(left.left(), 24);
    EXPECT_NEAR((centered.left() + centered.right()) / 2, 170, 2);
    EXPECT_LE(inkOf("wide\nand deep", DT_LEFT, -1, 9).bottom(), 28);
    EXPECT_LE(inkOf("wwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwwww").right(), 319);
}

TEST(PaintTest, DrawnTextsAreSpoken) {
    const char* name = "Name: Zo\xEB &Goth";
    TestWindow window([&name](HWND handle, UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
        if (message != WM_PAINT) return std::nullopt;
        PAINTSTRUCT paint;
        BeginPaint(handle, &paint);
        RECT first{10, 10, 400, 30};
        RECT second{10, 40, 400, 60};
        RECT third{10, 130, 400, 160};
        DrawTextA(paint.hdc, "Pick a Family: ", -1, &first, DT_LEFT);
        DrawTextA(paint.hdc, "Pick a Sim: ", -1, &second, DT_LEFT);
        DrawTextA(paint.hdc, name, -1, &third, DT_LEFT);
        EndPaint(handle, &paint);
        return 0;
    });
    HWND const family = window.addControl("ComboBox", "", WS_VISIBLE, 1, {160, 10, 360, 210});
    HWND const sim = window.addControl("ComboBox", "", WS_VISIBLE, 2, {160, 40, 360, 240});
    window.show();
    EXPECT_EQ(spokenName(family), "Pick a Family:");
    EXPECT_EQ(spokenName(sim), "Pick a Sim:");
    EXPECT_EQ(spokenName(window.handle), "A test's window");
    EXPECT_EQ(spokenDescription(window.handle), "Pick a Family:\nPick a Sim:\nName: Zo\xEB Goth");
    name = "Name: none";
    update(window.handle, {0, 120, 600, 160}, TRUE);
    EXPECT_EQ(spokenDescription(window.handle), "Pick a Family:\nPick a Sim:\nName: none");
}

TEST(PaintTest, ACursorStaysUntilTheArrowComesBack) {
    HCURSOR const arrow = LoadCursorA(nullptr, IDC_ARROW);
    HCURSOR const wait = LoadCursorA(nullptr, IDC_WAIT);
    EXPECT_EQ(LoadCursorA(nullptr, IDC_WAIT), wait);
    EXPECT_EQ(LoadCursorA(nullptr, MAKEINTRESOURCEA(1)), nullptr);
    EXPECT_EQ(SetCursor(wait), arrow);
    EXPECT_EQ(SetCursor(wait), wait);
    EXPECT_TRUE(waitCursorShows());
    EXPECT_EQ(SetCursor(arrow), wait);
    EXPECT_FALSE(waitCursorShows());
}
