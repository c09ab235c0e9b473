// Pictures for "BMP_" chunks: whole Windows bitmap files.
#ifndef SAMPLE_BITMAP_H
#define SAMPLE_BITMAP_H

#include <cstdint>

#include "gamefiles/byte_writer.h"

// Colors as 0xRRGGBB. No byte of them may be A3: five of these in a row mark the end of a Sim's body strings.
struct PortraitColors {
    std::uint32_t background = 0x9CC4E0;
    std::uint32_t skin = 0xF0C8A0;
    std::uint32_t hair = 0x704020;
};

// A bitmap file of 24 bits a pixel with a round face in it. If the picture isn't square, the face is repeated along the
// longer side.
Bytes portraitBitmap(int width, int height, const PortraitColors& colors = {});

#endif
