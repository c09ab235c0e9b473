// Draws the program's icons and its splash picture while the program is built: draw_pictures DIRECTORY
#include <array>
#include <cstdio>
#include <span>
#include <string>

#include "resources/draw/bitmap_file.h"
#include "resources/draw/icon_file.h"
#include "resources/draw/png_file.h"
#include "resources/draw/scene.h"

namespace {

bool writeFile(const std::string& path, std::span<const std::uint8_t> bytes) {
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (file == nullptr) {
        std::perror(path.c_str());
        return false;
    }
    const bool whole = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    const bool closed = std::fclose(file) == 0;
    if (!whole || !closed) std::perror(path.c_str());
    return whole && closed;
}

// The large icons of desktops, too, come from the two pictures.
bool writeMenuIcons(const std::string& directory) {
    return writeFile(directory + "/icon16.png", pngFile(smallHouseIcon(), 1)) &&
           writeFile(directory + "/icon32.png", pngFile(largeHouseIcon(), 1)) &&
           writeFile(directory + "/icon48.png", pngFile(smallHouseIcon(), 3)) &&
           writeFile(directory + "/icon64.png", pngFile(largeHouseIcon(), 2)) &&
           writeFile(directory + "/icon128.png", pngFile(largeHouseIcon(), 4));
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::fputs("usage: draw_pictures DIRECTORY\n", stderr);
        return 2;
    }
    const std::string directory = arguments[1];
    const std::array<IconPicture, 2> bothSizes = {largeHouseIcon(), smallHouseIcon()};
    const std::array<IconPicture, 1> smallOnly = {smallHouseIcon()};
    const bool written = writeFile(directory + "/icon107.ico", iconFile(bothSizes)) &&
                         writeFile(directory + "/icon108.ico", iconFile(smallOnly)) &&
                         writeFile(directory + "/splash.bmp", bitmapFile(drawScene())) && writeMenuIcons(directory);
    return written ? 0 : 1;
}
