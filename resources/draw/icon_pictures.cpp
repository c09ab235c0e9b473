#include "resources/draw/icon_pictures.h"

namespace {

// Entry 0 stands where nothing is drawn: such pixels must be black for the picture behind them to show.
constexpr IconPalette houseColors = {{
    {'.', rgb(0x000000)},  // nothing
    {'k', rgb(0x1C204A)},  // outline
    {'R', rgb(0xE06C50)},  // roof in the sun
    {'r', rgb(0xA83C3A)},  // roof in the shade
    {'w', rgb(0xFBEED2)},  // wall in the sun
    {'v', rgb(0xD6BA98)},  // wall in the shade
    {'y', rgb(0xFFC84A)},  // lit window
    {'Y', rgb(0xFFE890)},  // lit window, near the lamp
    {'S', rgb(0xB08880)},  // chimney in the sun
    {'s', rgb(0x785860)},  // chimney in the shade
    {'b', rgb(0x1C5098)},  // deep water
    {'B', rgb(0x3688D0)},  // wave
    {'c', rgb(0x88CCF0)},  // crest
    {'f', rgb(0xFFFFFF)},  // foam
    {' ', rgb(0x808080)},  // not used
    {' ', rgb(0xC0C0C0)},  // not used
}};

// clang-format off
constexpr std::array<std::string_view, 32> largeHouse = {
    "...............kk...............",
    "..............kRrk..............",
    ".............kRRrrk..kkkkkk.....",
    "............kRRRrrrk.kSSssk.....",
    "...........kRRRkkrrrkkkkkkk.....",
    "..........kRRRkwwkrrrkkSsk......",
    ".........kRRRkwwwwkrrrkSsk......",
    "........kRRRkwkkkkwkrrrksk......",
    ".......kRRRkwkyyyykwkrrrkk......",
    "......kRRRkwwkyyyykwwkrrrk......",
    ".....kRRRkwwwwkkkkwwwwkrrrk.....",
    "....kRRRkwwwwwwwwwwwwwvkrrrk....",
    "...kRRRkwwwwwwwwwwwwwwvvkrrrk...",
    "..kRRRkwwwwkkkkkkkkkkwvvvkrrrk..",
    ".kRRRkwwwwwkyyykkyyykwvvvvkrrrk.",
    ".kkkkkkwwwwkyyykkyyykwwvvkkkkkk.",
    "......kwwwwkyyykkyyykwwvvk......",
    "......kwwwwkkkkkkkkkkwwvvk......",
    "......kwwwwkYYYkkYYYkwwvvk......",
    "......kwwwwkYYYkkYYYkwwvvk......",
    "......ffffwkYYYkkYYYkwffff......",
    "....ffccccffkkkkkkkkffccccff....",
    "...fccBBBBBcfwwwwwwfccBBBBBcf...",
    "..fcBBBBffffcfwwwwfcBBBBffffcf..",
    ".fcBBBBfwwwwfcfwwfcBBBBf....fcf.",
    "fcBBBBBBfwwwwfwwfcBBBBBBf....f..",
    "cBBBBBBBBffwwwffcBBBBBBBBff...ff",
    "BBBBBBBBBBBffffcBBBBBBBBBBBffffc",
    "BBBBBBBBBBBBBBBBBBBBBBBBBBBBBBBB",
    "bBBBBBBBBBBBBBBbbBBBBBBBBBBBBBBb",
    "bbbBBBBBBBBBBbbbbbbBBBBBBBBBBbbb",
    "bbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbb",
};

constexpr std::array<std::string_view, 16> smallHouse = {
    ".......kk.......",
    "......kRrk.kkk..",
    ".....kRRrrkkSk..",
    "....kRRkkrrkSk..",
    "...kRRkwwkrrkk..",
    "..kRRkwwwwkrrk..",
    ".kRRkwwwwwvkrrk.",
    ".kkkwkkkkkkvkkk.",
    "...kwkyyyykvk...",
    "...kwkyyyykvk...",
    "..fffkYYYYfff...",
    ".fcBBfkkkfcBBf..",
    "fcBBffwwfcBBff..",
    "cBBBBffwcBBBBff.",
    "BBBBBBffBBBBBBff",
    "bBBBBBBbbBBBBBBb",
};
// clang-format on

template <std::size_t Size>
constexpr bool isSquare(const std::array<std::string_view, Size>& rows) {
    for (const std::string_view row : rows) {
        if (row.size() != Size) return false;
    }
    return true;
}

static_assert(isSquare(largeHouse) && isSquare(smallHouse));

}  // namespace

IconPicture largeHouseIcon() {
    return {largeHouse, houseColors};
}

IconPicture smallHouseIcon() {
    return {smallHouse, houseColors};
}

std::uint8_t paletteIndex(const IconPicture& picture, char sign) {
    for (std::size_t i = 0; i < picture.palette.size(); ++i) {
        if (picture.palette[i].sign == sign) return static_cast<std::uint8_t>(i);
    }
    return 0;
}
