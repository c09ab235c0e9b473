#include "gamefiles/bitmap.h"

#include <algorithm>

namespace {

constexpr int headersSize = 54;
constexpr int infoHeaderSize = 40;
constexpr int dotsPerMeter = 2835;  // 72 to the inch

// Whether (x, y) lies in the disc, in a square of 200 units whose middle is the origin and whose y runs downwards.
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

// Whole faces only; what they leave over at the right and at the foot is background.
std::uint32_t tiledColor(int x, int y, int across, int down, int side, const PortraitColors& colors) {
    if (x / side >= across || y / side >= down) return colors.background;
    return portraitColor(x % side * 200 / side - 100, y % side * 200 / side - 100, colors);
}

void writeHeaders(ByteWriter& file, int width, int height) {
    const auto size =
        static_cast<std::int64_t>(bitmapFileSize(static_cast<std::size_t>(width), static_cast<std::size_t>(height)));
    file.text("BM").u32Le(size).u32Le(0).u32Le(headersSize);
    file.u32Le(infoHeaderSize).u32Le(width).u32Le(height).u16Le(1).u16Le(24).u32Le(0).u32Le(size - headersSize);
    file.u32Le(dotsPerMeter).u32Le(dotsPerMeter).u32Le(0).u32Le(0);
}

}  // namespace

Bytes portraitBitmap(int width, int height, const PortraitColors& colors) {
    const int side = std::max(1, std::min(width, height));
    ByteWriter file;
    writeHeaders(file, width, height);
    for (int row = height - 1; row >= 0; --row) {  // a bitmap's first row is the lowest
        for (int column = 0; column < width; ++column) {
            const std::uint32_t color = tiledColor(column, row, width / side, height / side, side, colors);
            file.u8(color).u8(color >> 8).u8(color >> 16);
        }
        const std::size_t rowSize = bitmapFileSize(static_cast<std::size_t>(width), 1) - headersSize;
        file.fillTo(headersSize + rowSize * static_cast<std::size_t>(height - row));
    }
    return file.written();
}
