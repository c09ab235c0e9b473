// Compiled resources, whole and damaged, from bytes written out by hand.
#include <gtest/gtest.h>

#include <vector>

#include "platform/native/dialog_template.h"
#include "platform/native/dib.h"
#include "platform/native/menu_template.h"
#include "platform/native/resource_file.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

// Two entries: the empty one that opens every file, and table 7 of the strings, whose entries 96 and 97 are "Né" and
// "x" ("€" in front of it).
const Bytes stringFile = {
    0,  0, 0,   0, 32,   0, 0, 0, 0xFF, 0xFF, 0,   0, 0xFF, 0xFF, 0, 0,
    0,  0, 0,   0, 0,    0, 0, 0, 0,    0,    0,   0, 0,    0,    0, 0,  //
    13, 0, 0,   0, 32,   0, 0, 0, 0xFF, 0xFF, 6,   0, 0xFF, 0xFF, 7, 0,
    0,  0, 0,   0, 0,    0, 9, 4, 0,    0,    0,   0, 0,    0,    0, 0,  //
    2,  0, 'N', 0, 0xE9, 0, 2, 0, 0xAC, 0x20, 'x', 0, 0,
};

// "&File" with "&Save" 100 (grayed) and a separator, then the item "Quit" 101 that ends the list.
const Bytes menuBytes = {
    0,    0, 0,   0,                                                // version, nothing to skip
    0x10, 0, '&', 0, 'F', 0, 'i', 0, 'l', 0, 'e', 0, 0,   0,        //
    0x01, 0, 100, 0, '&', 0, 'S', 0, 'a', 0, 'v', 0, 'e', 0, 0, 0,  //
    0x80, 0, 0,   0, 0,   0,                                        //
    0x80, 0, 101, 0, 'Q', 0, 'u', 0, 'i', 0, 't', 0, 0,   0,        //
};

// 8-point "S", title "Te", one push button "O" with id 1.
const Bytes dialogBytes = {
    0xC0, 0,    0xC8, 0x80, 0,    0,    0,    0,    1,   0,
    22,   0,    17,   0,    230,  0,    75,   0,  // style to size
    0,    0,    0,    0,    'T',  0,    'e',  0,    0,   0,
    8,    0,    'S',  0,    0,    0,    0xEE, 0xEE,  // menu, class, title, font, filled up to 4
    1,    0,    1,    0x50, 0,    0,    0,    0,    195, 0,
    6,    0,    30,   0,    0xFF, 0xFF, 1,    0,             // style to id
    0xFF, 0xFF, 0x80, 0,    'O',  0,    0,    0,    0,   0,  // class, title, nothing more
};

Bytes dibHeader(std::uint8_t width, std::uint8_t height, std::uint8_t bits, std::uint8_t colors) {
    return {40, 0, 0, 0, width, 0, 0, 0, height, 0, 0, 0, 1,      0, bits, 0, 0, 0, 0, 0,
            0,  0, 0, 0, 0,     0, 0, 0, 0,      0, 0, 0, colors, 0, 0,    0, 0, 0, 0, 0};
}

Bytes joined(Bytes a, const Bytes& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

// 2 x 2 pixels of 24 bits: below blue and green, above red and white; 2 bytes fill each row.
const Bytes colorBytes = joined(dibHeader(2, 2, 24, 0), {255, 0, 0, 0, 255, 0, 0, 0, 0, 0, 255, 255, 255, 255, 0, 0});

// 2 x 1 pixels of 4 bits from two colours, black and red: both red, but the mask cuts the first out.
const Bytes iconBytes = joined(dibHeader(2, 2, 4, 2), {0, 0, 0, 0, 0, 0, 255, 0, 0x11, 0, 0, 0, 0x80, 0, 0, 0});

// Every cut is refused by `whole`, and no byte can be changed so that reading it does harm.
template <typename Whole>
void expectCutsRefused(const Bytes& bytes, Whole whole) {
    EXPECT_TRUE(whole(bytes));
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        SCOPED_TRACE(length);
        EXPECT_FALSE(whole(Bytes(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length))));
    }
    for (std::size_t at = 0; at < bytes.size(); ++at)
        for (const std::uint8_t value : Bytes{0x00, 0x01, 0x7F, 0x80, 0xFF}) {
            Bytes wild = bytes;
            wild[at] = value;
            whole(wild);
        }
}

}  // namespace

TEST(ResourceFileTest, StringsAreReadFromTheirTable) {
    const ResourceFile file(stringFile);
    EXPECT_EQ(file.string(96), "N\xE9");
    EXPECT_EQ(file.string(97), "\x80x");
    for (const UINT missing : {0U, 95U, 98U, 112U})
        EXPECT_EQ(file.string(missing), "");
    EXPECT_EQ(file.find(resourceType::stringTable, 7)->size(), 13U);
    EXPECT_FALSE(file.find(resourceType::stringTable, 6).has_value());
    expectCutsRefused(stringFile, [](const Bytes& bytes) { return ResourceFile(bytes).string(97) == "\x80x"; });
}

TEST(ResourceFileTest, MenusAreReadWithTheirLevels) {
    const auto menu = readMenuTemplate(ResourceBytes(menuBytes));
    ASSERT_TRUE(menu.has_value());
    ASSERT_EQ(menu->size(), 2U);
    const MenuItem& file = menu->front();
    EXPECT_EQ(file.text, "&File");
    ASSERT_TRUE(file.isPopup && file.items.size() == 2);
    EXPECT_TRUE(file.items[0].text == "&Save" && file.items[0].id == 100 && file.items[0].grayed);
    EXPECT_TRUE(file.items[1].text.isEmpty());
    EXPECT_TRUE(menu->back().text == "Quit" && menu->back().id == 101 && !menu->back().grayed);
    expectCutsRefused(menuBytes, [](const Bytes& bytes) { return readMenuTemplate(ResourceBytes(bytes)).has_value(); });

    Bytes endless = {0, 0, 0, 0};
    for (int level = 0; level < 100000; ++level)
        endless.insert(endless.end(), {0x90, 0, 'x', 0, 0, 0});
    EXPECT_FALSE(readMenuTemplate(ResourceBytes(endless)).has_value());
}

TEST(ResourceFileTest, DialogsAreReadWithTheirItems) {
    const auto dialog = readDialogTemplate(ResourceBytes(dialogBytes));
    ASSERT_TRUE(dialog.has_value());
    EXPECT_EQ(dialog->place, QRect(22, 17, 230, 75));
    EXPECT_TRUE(dialog->title == "Te" && dialog->points == 8 && dialog->font == "S");
    ASSERT_EQ(dialog->items.size(), 1U);
    const DialogItem& button = dialog->items[0];
    EXPECT_EQ(button.kind, DialogItem::Kind::button);
    EXPECT_EQ(button.place, QRect(195, 6, 30, -1));
    EXPECT_TRUE(button.id == 1 && button.title == "O" && button.style == 0x50010001);
    expectCutsRefused(dialogBytes,
                      [](const Bytes& bytes) { return readDialogTemplate(ResourceBytes(bytes)).has_value(); });
}

TEST(ResourceFileTest, PicturesAreReadPixelByPixel) {
    const QImage picture = readDib(ResourceBytes(colorBytes));
    EXPECT_EQ(picture.size(), QSize(2, 2));
    const QRgb expected[] = {0xFFFF0000, 0xFFFFFFFF, 0xFF0000FF, 0xFF00FF00};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(picture.pixel(i % 2, i / 2), expected[i]);
    expectCutsRefused(colorBytes, [](const Bytes& bytes) { return !readDib(ResourceBytes(bytes)).isNull(); });

    const QImage icon = readIconDib(ResourceBytes(iconBytes));
    EXPECT_EQ(icon.size(), QSize(2, 1));
    EXPECT_EQ(qAlpha(icon.pixel(0, 0)), 0);
    EXPECT_EQ(icon.pixel(1, 0), 0xFFFF0000);
    expectCutsRefused(iconBytes, [](const Bytes& bytes) { return !readIconDib(ResourceBytes(bytes)).isNull(); });
}
