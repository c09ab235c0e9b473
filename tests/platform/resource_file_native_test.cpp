// Compiled resources, whole and damaged, from bytes written out by hand.
#include <gtest/gtest.h>

#include <vector>

#include "platform/native/dib.h"
#include "platform/native/menu_template.h"
#include "platform/native/resource_file.h"
#include "platform/win32.h"
#include "resources/ids.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

// Numbers of 2 bytes.
Bytes words(const std::vector<int>& numbers) {
    Bytes bytes;
    for (const int number : numbers) {
        bytes.push_back(static_cast<std::uint8_t>(number & 0xFF));
        bytes.push_back(static_cast<std::uint8_t>(number >> 8));
    }
    return bytes;
}

// Two entries: the empty one that opens every file, and table 7 of the strings, with "N\xE9" and "\x80x" as 96 and 97.
const Bytes stringFile = words({0,  0,   32,   0, 0xFFFF, 0,  0xFFFF, 0, 0, 0, 0, 0,     0, 0, 0, 0,  //
                                12, 0,   32,   0, 0xFFFF, 6,  0xFFFF, 7, 0, 0, 0, 0x409, 0, 0, 0, 0,  //
                                2,  'N', 0xE9, 2, 0x20AC, 'x'});

// "&File" with "&Save" 100, grayed, and a separator; behind it "Quit" 101, which ends the list.
const Bytes menuBytes = words({0,   0,   0x10, '&',  'F', 'i', 'l',  'e', 0,   1,   100, '&', 'S', 'a',
                               'v', 'e', 0,    0x80, 0,   0,   0x80, 101, 'Q', 'u', 'i', 't', 0});

// 2 x 2 pixels of 24 bits: below blue and green, above red and white; 2 bytes fill each row.
const Bytes colorBytes = words({40, 0, 2, 0, 2, 0, 1,      24,     0,      0, 0,      0,      0,      0,
                                0,  0, 0, 0, 0, 0, 0x00FF, 0x0000, 0x00FF, 0, 0x0000, 0xFFFF, 0xFFFF, 0});

// Every cut is refused by `whole`.
template <typename Whole>
void expectCutsRefused(const Bytes& bytes, Whole whole) {
    EXPECT_TRUE(whole(bytes));
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        SCOPED_TRACE(length);
        EXPECT_FALSE(whole(Bytes(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length))));
    }
}

}  // namespace

TEST(ResourceFileTest, StringsAreReadFromTheirTable) {
    const ResourceFile file(stringFile);
    EXPECT_EQ(file.string(96), "N\xE9");
    expectCutsRefused(stringFile, [](const Bytes& bytes) { return ResourceFile(bytes).string(97) == "\x80x"; });
    char buffer[10] = "";
    EXPECT_EQ(LoadStringA(nullptr, IDS_MAIN_CLASS, buffer, sizeof buffer), 9);
    EXPECT_STREQ(buffer, "TIDEWRIGH");
}

TEST(ResourceFileTest, MenusAreReadWithTheirLevels) {
    expectCutsRefused(menuBytes, [](const Bytes& bytes) {
        const auto menu = readMenuTemplate(ResourceBytes(bytes));
        return menu.has_value() && menu->size() == 2 && menu->front().items[0].grayed && menu->back().id == 101;
    });
}

TEST(ResourceFileTest, PicturesAreReadPixelByPixel) {
    const QImage picture = readDib(ResourceBytes(colorBytes));
    const QRgb expected[] = {0xFFFF0000, 0xFFFFFFFF, 0xFF0000FF, 0xFF00FF00};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(picture.pixel(i % 2, i / 2), expected[i]);
    expectCutsRefused(colorBytes, [](const Bytes& bytes) { return !readDib(ResourceBytes(bytes)).isNull(); });
}
