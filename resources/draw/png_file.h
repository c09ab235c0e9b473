// Pictures as PNG files, for the menus of desktops.
#ifndef RESOURCES_DRAW_PNG_FILE_H
#define RESOURCES_DRAW_PNG_FILE_H

#include <cstddef>
#include <cstdint>
#include <vector>

#include "resources/draw/icon_pictures.h"

// The bytes of a PNG file with the picture, each of its pixels a square of `scale` by `scale`: a picture drawn pixel by
// pixel stays sharp only so. Of 16 colours, the first of them see-through; at most 256 pixels wide and high.
std::vector<std::uint8_t> pngFile(const IconPicture& picture, std::size_t scale);

#endif
