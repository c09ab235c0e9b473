// A picture as the file behind a bitmap resource.
#ifndef RESOURCES_DRAW_BITMAP_FILE_H
#define RESOURCES_DRAW_BITMAP_FILE_H

#include <cstdint>
#include <vector>

#include "resources/draw/canvas.h"

// The bytes of a Windows bitmap of 24 bits a pixel without compression, rows from the bottom up. The pixels' light is
// rounded with a fine grain, the same on every run, so that the sky shows no steps.
std::vector<std::uint8_t> bitmapFile(const Canvas& canvas);

#endif
