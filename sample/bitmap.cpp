#include "sample/bitmap.h"

#include <algorithm>
#include <cstddef>

namespace {

constexpr int infoHeaderSize = 40;
constexpr int headersSize = 14 + infoHeaderSize;
constexpr int planes = 1;
constexpr int bitsPerPixel = 24;
constexpr int dotsPerMeter = 2835;  // 72 to the inch

// Rows are padded to multiples of 4 bytes.
constexpr int rowSize(int width) {
    return (width * bitsPerPixel / 8 + 3) / 4 * 4;
}

// Whether (x, y) is in the disc. The portrait is a square of 200 units with the origin in its middle; y runs down.
bool inDisc(int x, int y, int centerX, int centerY, int radius) {
    return (x - centerX) * (x - centerX) + (y - centerY) * (y - centerY) <= radius * radius;
}

std::uint32_t portraitColor(int x, int y, const PortraitColors& colors) {
    constexpr std::uint32_t ink = 0x302018;
    const bool eye = inDisc(x, y, -24, 0, 8) || inDisc(x, y, 24, 0, 8);
    const bool mouth = inDisc(x, y, 0, 22, 26) && !inDisc(x, y, 0, 14, 28);
    if (eye || mouth) return ink;
    if (inDisc(x, y, 0, 12, 62)) return colors.skin;
    if (inDisc(x, y, 0, -8, 78)) return colors.hair;
    return colors.background;
}

// The color of a pixel in a picture that whole portraits of `side` pixels tile from its top left corner. What is left
// over at the right and at the bottom is background.
std::uint32_t tiledColor(int column, int row, int width, int height, int side, const PortraitColors& colors) {
    if (column / side >= width / side || row / side >= height / side) return colors.background;
    return portraitColor(column % side * 200 / side - 100, row % side * 200 / side - 100, colors);
}

void writeHeaders(ByteWriter& file, int width, int height) {
    const int pixelsSize = rowSize(width) * height;
    file.text("BM").u32Le(headersSize + pixelsSize).u32Le(0).u32Le(headersSize);
    file.u32Le(infoHeaderSize).u32Le(width).u32Le(height).u16Le(planes).u16Le(bitsPerPixel);
    file.u32Le(0).u32Le(pixelsSize).u32Le(dotsPerMeter).u32Le(dotsPerMeter).u32Le(0).u32Le(0);
}

}  // namespace

Bytes portraitBitmap(int width, int height, const PortraitColors& colors) {
    const int side = std::max(1, std::min(width, height));
    ByteWriter file;
    writeHeaders(file, width, height);
    for (int row = height - 1; row >= 0; --row) {  // a bitmap begins with its bottom row
        const std::size_t end = file.size() + static_cast<std::size_t>(rowSize(width));
        for (int column = 0; column < width; ++column) {
            const std::uint32_t color = tiledColor(column, row, width, height, side, colors);
            file.u8(color).u8(color >> 8).u8(color >> 16);
        }
        file.fillTo(end);
    }
    return file.written();
}
