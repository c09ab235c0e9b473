// The program's icons, drawn pixel by pixel: a house with the tide at its door.
#ifndef RESOURCES_DRAW_ICON_PICTURES_H
#define RESOURCES_DRAW_ICON_PICTURES_H

#include <array>
#include <span>
#include <string_view>

#include "resources/draw/color.h"

struct IconColor {
    char sign = '.';
    Color color;
};

using IconPalette = std::array<IconColor, 16>;

// A square picture: one text per row from the top, one sign of the palette per pixel. The sign of entry 0 is
// see-through.
struct IconPicture {
    std::span<const std::string_view> rows;
    const IconPalette& palette;
};

IconPicture largeHouseIcon();  // 32 x 32
IconPicture smallHouseIcon();  // 16 x 16

// The palette's entry for a sign of the picture; 0 if it has none.
std::uint8_t paletteIndex(const IconPicture& picture, char sign);

#endif
