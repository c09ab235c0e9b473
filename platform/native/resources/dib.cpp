#include "platform/native/resources/dib.h"

#include <QColor>
#include <cstdlib>
#include <vector>

namespace {

constexpr std::uint32_t headerSize = 40;
constexpr int greatestSide = 8192;

struct Header {
    int width, rows;
    bool lowestFirst;
    int bits;
    std::vector<QRgb> colors;
};

bool known(int bits) {
    return bits == 1 || bits == 4 || bits == 8 || bits == 24 || bits == 32;
}

// A width of 0 means that the header can't be read.
Header readHeader(ResourceBytes& bytes) {
    const bool rightSize = bytes.u32() == headerSize;
    Header header{bytes.i32(), bytes.i32(), true, 0, {}};
    bytes.u16();  // planes
    header.bits = bytes.u16();
    const bool plain = bytes.u32() == 0;
    bytes.take(12);  // size of the pixels, resolution
    std::uint32_t colorCount = bytes.u32();
    bytes.u32();
    header.lowestFirst = header.rows > 0;
    const bool fits = header.width > 0 && header.width <= greatestSide && header.rows >= -greatestSide &&
                      header.rows <= greatestSide && header.rows != 0;
    if (!rightSize || !plain || !known(header.bits) || !fits) return {};
    header.rows = std::abs(header.rows);
    if (header.bits <= 8 && (colorCount == 0 || colorCount > 1U << header.bits)) colorCount = 1U << header.bits;
    for (std::uint32_t i = 0; i < colorCount && !bytes.failed(); ++i) {
        header.colors.push_back(bytes.u32() | 0xFF000000);
    }
    header.colors.resize(256, qRgb(0, 0, 0));
    if (bytes.failed()) header.width = 0;
    return header;
}

QRgb pixelAt(std::span<const std::uint8_t> row, int x, int bits, const std::vector<QRgb>& colors) {
    const auto bit = static_cast<std::size_t>(x) * static_cast<std::size_t>(bits);
    const std::size_t byte = bit / 8;
    if (bits <= 8) return colors[row[byte] >> (8 - bits - static_cast<int>(bit % 8)) & ((1 << bits) - 1)];
    return qRgba(row[byte + 2], row[byte + 1], row[byte], bits == 32 ? row[byte + 3] : 0xFF);
}

// Calls `set(x, y, color)` for each pixel. False if there are too few bytes.
template <typename Set>
bool readRows(ResourceBytes& bytes, const Header& header, Set set) {
    const std::size_t rowSize =
        (static_cast<std::size_t>(header.width) * static_cast<std::size_t>(header.bits) + 31) / 32 * 4;
    for (int i = 0; i < header.rows; ++i) {
        const auto row = bytes.take(rowSize);
        if (bytes.failed()) return false;
        const int y = header.lowestFirst ? header.rows - 1 - i : i;
        for (int x = 0; x < header.width; ++x) {
            set(x, y, pixelAt(row, x, header.bits, header.colors));
        }
    }
    return true;
}

}  // namespace

QImage readDib(ResourceBytes bytes) {
    const Header header = readHeader(bytes);
    if (header.width == 0) return {};
    QImage image(header.width, header.rows, QImage::Format_RGB32);
    auto* const pixels = reinterpret_cast<QRgb*>(image.bits());
    const bool whole =
        readRows(bytes, header, [&](int x, int y, QRgb color) { pixels[y * header.width + x] = color | 0xFF000000; });
    return whole ? image : QImage();
}

QImage readIconDib(ResourceBytes bytes) {
    Header header = readHeader(bytes);
    header.rows /= 2;
    if (header.width == 0 || header.rows == 0) return {};
    QImage image(header.width, header.rows, QImage::Format_ARGB32);
    if (!readRows(bytes, header, [&image](int x, int y, QRgb color) { image.setPixel(x, y, color); })) return {};
    if (header.bits == 32) return image;
    Header mask = header;
    mask.bits = 1;
    mask.colors = {qRgb(0, 0, 0), qRgb(255, 255, 255)};
    const bool whole = readRows(bytes, mask, [&image](int x, int y, QRgb color) {
        if (color != qRgb(0, 0, 0)) image.setPixel(x, y, 0);
    });
    return whole ? image : QImage();
}
