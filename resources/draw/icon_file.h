// Pictures as the file behind an icon resource.
#ifndef RESOURCES_DRAW_ICON_FILE_H
#define RESOURCES_DRAW_ICON_FILE_H

#include <cstdint>
#include <span>
#include <vector>

#include "resources/draw/icon_pictures.h"

// The bytes of a Windows icon file with these pictures in their order, each of 16 colours and with a mask of what is
// see-through. A sign that isn't in the picture's palette is see-through too.
std::vector<std::uint8_t> iconFile(std::span<const IconPicture> pictures);

#endif
