// Compiled resources, whole and damaged, from bytes written out by hand.
#include <gtest/gtest.h>

#include <vector>

#include "platform/native/dialog_template.h"
#include "platform/native/dib.h"
#include "platform/native/menu_template.h"
#include "platform/native/resource_file.h"

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

// Style, 1 item, place, no menu and class, title "Te", 8-point "S", filled up to 4; a push button "O" with id 1.
const Bytes dialogBytes = words({0xC0, 0x80C8, 0, 0,      1, 22, 17,  230, 75, 0,      0, 'T',    'e',  0,   8, 'S',
                                 0,    0xEEEE, 1, 0x5001, 0, 0,  195, 6,   30, 0xFFFF, 1, 0xFFFF, 0x80, 'O', 0, 0});

// 2 x 2 pixels of 24 bits: below blue and green, above red and white; 2 bytes fill each row.
const Bytes colorBytes = words({40, 0, 2, 0, 2, 0, 1,      24,     0,      0, 0,      0,      0,      0,
                                0,  0, 0, 0, 0, 0, 0x00FF, 0x0000, 0x00FF, 0, 0x0000, 0xFFFF, 0xFFFF, 0});

// 2 x 1 pixels of 4 bits from two colours, black and red: both red, but the mask cuts the first out.
const Bytes iconBytes =
    words({40, 0, 2, 0, 2, 0, 1, 4, 0, 0, 0, 0, 0, 0, 0, 0, 2, 0, 0, 0, 0, 0, 0, 0xFF, 0x11, 0, 0x80, 0});

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
    EXPECT_EQ(file.find(resourceType::stringTable, 7)->size(), 12U);
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

    Bytes endless = words({0, 0});
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
