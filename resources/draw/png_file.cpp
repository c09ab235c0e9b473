#include "resources/draw/png_file.h"

#include <string_view>

#include "resources/draw/file_bytes.h"

namespace {

constexpr std::string_view signature = "\x89PNG\r\n\x1A\n";
constexpr std::size_t bitsPerPixel = 4;
constexpr std::uint8_t paletteColors = 3;

std::uint32_t checksum(const std::vector<std::uint8_t>& bytes) {
    std::uint32_t sum = 0xFFFFFFFF;
    for (const std::uint8_t byte : bytes) {
        sum ^= byte;
        for (int bit = 0; bit < 8; ++bit) {
            sum = sum >> 1 ^ ((sum & 1) != 0 ? 0xEDB88320 : 0);
        }
    }
    return ~sum;
}

// The checksum covers type and content, the length the content alone.
void appendChunk(FileBytes& file, std::string_view type, const FileBytes& content) {
    FileBytes checked;
    checked.append(type);
    checked.append(content.bytes());
    file.u32Be(content.bytes().size());
    file.append(checked.bytes());
    file.u32Be(checksum(checked.bytes()));
}

FileBytes header(std::size_t side) {
    FileBytes content;
    content.u32Be(side);
    content.u32Be(side);
    content.u8(bitsPerPixel);
    content.u8(paletteColors);
    content.u8(0);  // compression: the only one there is
    content.u8(0);  // filters: likewise
    content.u8(0);  // not interlaced
    return content;
}

FileBytes palette(const IconPalette& colors) {
    FileBytes content;
    for (const IconColor& entry : colors) {
        content.u8(byteOf(entry.color.red));
        content.u8(byteOf(entry.color.green));
        content.u8(byteOf(entry.color.blue));
    }
    return content;
}

// Opacity by palette entry; entries without one are opaque.
FileBytes opacities() {
    FileBytes content;
    content.u8(0);
    return content;
}

// Rows from the top down, each behind the number of its filter, two pixels in a byte, the left one in the higher half.
FileBytes pixels(const IconPicture& picture, std::size_t scale) {
    FileBytes content;
    const std::size_t side = picture.rows.size() * scale;
    const auto indexAt = [&](std::size_t x, std::size_t y) -> int {
        return paletteIndex(picture, picture.rows[y / scale][x / scale]);
    };
    for (std::size_t y = 0; y < side; ++y) {
        content.u8(0);  // as it is
        for (std::size_t x = 0; x < side; x += 2) {
            content.u8(static_cast<std::uint8_t>(indexAt(x, y) << bitsPerPixel | indexAt(x + 1, y)));
        }
    }
    return content;
}

// The stream around the pixels, in one block that is stored as it is: an icon isn't worth a compressor.
FileBytes stored(const std::vector<std::uint8_t>& bytes) {
    std::uint32_t sum = 1;
    std::uint32_t sumOfSums = 0;
    for (const std::uint8_t byte : bytes) {
        sum = (sum + byte) % 65521;
        sumOfSums = (sumOfSums + sum) % 65521;
    }
    FileBytes stream;
    stream.u8(0x78);  // a window of 32,768 bytes
    stream.u8(0x01);  // fastest; makes the two bytes a multiple of 31
    stream.u8(1);     // the last block, stored
    stream.u16(bytes.size());
    stream.u16(~bytes.size());
    stream.append(bytes);
    stream.u32Be(sumOfSums << 16 | sum);
    return stream;
}

}  // namespace

std::vector<std::uint8_t> pngFile(const IconPicture& picture, std::size_t scale) {
    FileBytes file;
    file.append(signature);
    appendChunk(file, "IHDR", header(picture.rows.size() * scale));
    appendChunk(file, "PLTE", palette(picture.palette));
    appendChunk(file, "tRNS", opacities());
    appendChunk(file, "IDAT", stored(pixels(picture, scale).bytes()));
    appendChunk(file, "IEND", {});
    return file.bytes();
}
