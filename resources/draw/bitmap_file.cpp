#include "resources/draw/bitmap_file.h"

#include "resources/draw/file_bytes.h"
#include "resources/draw/noise.h"

namespace {

constexpr std::size_t fileHeaderSize = 14;
constexpr std::size_t infoHeaderSize = 40;
constexpr std::size_t bytesPerPixel = 3;

void appendHeaders(FileBytes& file, std::size_t width, std::size_t height, std::size_t imageSize) {
    file.u8('B');
    file.u8('M');
    file.u32(fileHeaderSize + infoHeaderSize + imageSize);
    file.u32(0);  // reserved
    file.u32(fileHeaderSize + infoHeaderSize);
    file.u32(infoHeaderSize);
    file.u32(width);
    file.u32(height);
    file.u16(1);  // planes
    file.u16(bytesPerPixel * 8);
    file.u32(0);  // no compression
    file.u32(imageSize);
    file.u32(2835);  // pixels per metre: 72 an inch
    file.u32(2835);
    file.u32(0);  // no palette
    file.u32(0);
}

// `grain` is spread evenly over 0 to 1 and decides to which side a value between two steps goes.
std::uint8_t step(double share, double grain) {
    return static_cast<std::uint8_t>(std::clamp(share * 255 + grain, 0.0, 255.0));
}

}  // namespace

std::vector<std::uint8_t> bitmapFile(const Canvas& canvas) {
    const std::size_t width = static_cast<std::size_t>(canvas.width());
    const std::size_t height = static_cast<std::size_t>(canvas.height());
    // Each row is filled up to a multiple of 4 bytes.
    const std::size_t filling = (4 - width * bytesPerPixel % 4) % 4;
    FileBytes file;
    appendHeaders(file, width, height, (width * bytesPerPixel + filling) * height);
    for (int y = canvas.height() - 1; y >= 0; --y) {
        for (int x = 0; x < canvas.width(); ++x) {
            const Color light = canvas.at(x, y).light;
            const double grain = chance(x, y + 5000);
            file.u8(step(light.blue, grain));
            file.u8(step(light.green, grain));
            file.u8(step(light.red, grain));
        }
        for (std::size_t i = 0; i < filling; ++i) {
            file.u8(0);
        }
    }
    return file.bytes();
}
