#include "resources/draw/icon_file.h"

#include "resources/draw/file_bytes.h"

namespace {

constexpr std::size_t directoryHeaderSize = 6;
constexpr std::size_t directoryEntrySize = 16;
constexpr std::size_t infoHeaderSize = 40;
constexpr std::size_t paletteSize = std::size_t{16} * 4;
constexpr int bitsPerPixel = 4;

// Bytes of a row of pixels, which is filled up to a multiple of 4.
std::size_t rowSize(std::size_t pixels, std::size_t bits) {
    return (pixels * bits + 31) / 32 * 4;
}

std::size_t imageSize(std::size_t side) {
    return infoHeaderSize + paletteSize + side * (rowSize(side, bitsPerPixel) + rowSize(side, 1));
}

void appendHeader(FileBytes& file, std::size_t side) {
    file.u32(infoHeaderSize);
    file.u32(side);
    file.u32(side * 2);  // the picture and its mask, one above the other
    file.u16(1);         // planes
    file.u16(bitsPerPixel);
    file.u32(0);  // no compression
    file.u32(side * (rowSize(side, bitsPerPixel) + rowSize(side, 1)));
    file.u32(0);  // pixels per metre: unknown
    file.u32(0);
    file.u32(0);  // the palette is whole
    file.u32(0);
}

void appendPalette(FileBytes& file, const IconPalette& palette) {
    for (const IconColor& entry : palette) {
        file.u8(byteOf(entry.color.blue));
        file.u8(byteOf(entry.color.green));
        file.u8(byteOf(entry.color.red));
        file.u8(0);
    }
}

// Rows from the bottom up, `bits` per pixel, the leftmost pixel in a byte's highest bits.
template <typename Value>
void appendPixels(FileBytes& file, const IconPicture& picture, std::size_t bits, Value valueOf) {
    const std::size_t side = picture.rows.size();
    for (std::size_t y = side; y-- > 0;) {
        std::vector<std::uint8_t> row(rowSize(side, bits));
        for (std::size_t x = 0; x < side; ++x) {
            const std::size_t shift = 8 - bits - x * bits % 8;
            row[x * bits / 8] |= static_cast<std::uint8_t>(valueOf(picture.rows[y][x]) << shift);
        }
        file.append(row);
    }
}

void appendImage(FileBytes& file, const IconPicture& picture) {
    appendHeader(file, picture.rows.size());
    appendPalette(file, picture.palette);
    const auto colorOf = [&](char sign) -> int { return paletteIndex(picture, sign); };
    const auto maskOf = [&](char sign) -> int { return paletteIndex(picture, sign) == 0 ? 1 : 0; };
    appendPixels(file, picture, bitsPerPixel, colorOf);
    appendPixels(file, picture, 1, maskOf);
}

void appendDirectoryEntry(FileBytes& file, std::size_t side, std::size_t offset) {
    file.u8(static_cast<std::uint8_t>(side));
    file.u8(static_cast<std::uint8_t>(side));
    file.u8(1 << bitsPerPixel);
    file.u8(0);   // reserved
    file.u16(1);  // planes
    file.u16(bitsPerPixel);
    file.u32(imageSize(side));
    file.u32(offset);
}

}  // namespace

std::vector<std::uint8_t> iconFile(std::span<const IconPicture> pictures) {
    FileBytes file;
    file.u16(0);  // reserved
    file.u16(1);  // icons
    file.u16(pictures.size());
    std::size_t offset = directoryHeaderSize + directoryEntrySize * pictures.size();
    for (const IconPicture& picture : pictures) {
        appendDirectoryEntry(file, picture.rows.size(), offset);
        offset += imageSize(picture.rows.size());
    }
    for (const IconPicture& picture : pictures) {
        appendImage(file, picture);
    }
    return file.bytes();
}
