#include "prepare/neutral_picture.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>

#include "platform/byte_order.h"

namespace {

// Offsets in a bitmap file.
constexpr std::size_t pixelsOffsetField = 10;
constexpr std::size_t widthField = 18;
constexpr std::size_t heightField = 22;  // negative if the first row is the top one
constexpr std::size_t depthField = 28;   // bits a pixel, 2 bytes
constexpr std::size_t compressionField = 30;
constexpr std::size_t headersSize = 54;

constexpr std::size_t pixelSize = 3;

struct Rows {
    std::size_t offset = 0;
    std::size_t width = 0;  // in pixels
    std::size_t size = 0;   // of a row, a multiple of 4 bytes
    std::size_t count = 0;  // 0 for a bitmap of another kind
};

Rows rowsOf(std::span<const std::uint8_t> bitmap) {
    constexpr int depth = pixelSize * 8;
    if (bitmap.size() < headersSize || bitmap[0] != 'B' || bitmap[1] != 'M') return {};
    const auto number = [bitmap](std::size_t field) { return readI32Le(bitmap.subspan(field).first<4>()); };
    if (readU16Le(bitmap.subspan(depthField).first<2>()) != depth || number(compressionField) != 0) return {};
    const std::int64_t offset = number(pixelsOffsetField);
    const std::int64_t width = number(widthField);
    const std::int64_t height = std::abs(std::int64_t{number(heightField)});
    const auto size = static_cast<std::int64_t>(bitmap.size());
    if (offset < std::int64_t{headersSize} || offset > size || width <= 0) return {};
    const std::int64_t rowSize = (width * std::int64_t{pixelSize} + 3) / 4 * 4;
    if (height > (size - offset) / rowSize) return {};
    return {static_cast<std::size_t>(offset), static_cast<std::size_t>(width), static_cast<std::size_t>(rowSize),
            static_cast<std::size_t>(height)};
}

}  // namespace

Bytes neutralPicture(const Bytes& bitmap) {
    const Rows rows = rowsOf(bitmap);
    Bytes neutral = bitmap;
    for (std::size_t row = 0; row < rows.count; ++row) {
        const std::span<std::uint8_t> pixels =
            std::span(neutral).subspan(rows.offset + row * rows.size, rows.width * pixelSize);
        for (std::size_t at = 0; at < pixels.size(); ++at) {
            pixels[at] = bitmap[rows.offset + at % pixelSize];
        }
    }
    return neutral;
}
