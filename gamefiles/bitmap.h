// Pictures for the sample's "BMP_" chunks: whole Windows bitmap files.
#ifndef GAMEFILES_BITMAP_H
#define GAMEFILES_BITMAP_H

#include <cstddef>
#include <cstdint>

#include "gamefiles/byte_writer.h"

// Colours as 0xRRGGBB. None of the bytes may be A3: five in a row mark the end of a Sim's body strings.
struct PortraitColors {
    std::uint32_t background = 0x9CC4E0;
    std::uint32_t skin = 0xF0C8A0;
    std::uint32_t hair = 0x704020;
};

// Size in bytes of a bitmap file of these pixels, 24 bits each, rows padded to 4 bytes.
constexpr std::size_t bitmapFileSize(std::size_t width, std::size_t height) {
    return 54 + (width * 3 + 3) / 4 * 4 * height;
}

// A bitmap file with a round face in it; a picture that isn't square repeats the face along its longer side.
Bytes portraitBitmap(int width, int height, const PortraitColors& colors = {});

#endif
