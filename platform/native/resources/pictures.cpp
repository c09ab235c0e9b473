#include "platform/native/resources/pictures.h"

#include "platform/native/api/gdi.h"
#include "platform/native/api/resources.h"
#include "platform/native/api/system.h"
#include "platform/native/base/handle_table.h"
#include "platform/native/resources/resource_file.h"

namespace {

HandleTable<QImage> bitmaps;
HandleTable<std::vector<QImage>> icons;

// A group has 2 unused bytes, kind 1 for icons and a count, each of 2 bytes, then 14 bytes for each picture, the last 2
// of them its number. An icon file has the picture's offset there, in 4 bytes.
constexpr WORD kindIcon = 1;
constexpr std::size_t entryBeforeNumber = 12;
constexpr char fileOfOnePicture[] = {0, 0, kindIcon, 0, 1, 0};
constexpr char offsetInFile[] = {sizeof fileOfOnePicture + entryBeforeNumber + 4, 0, 0, 0};

QByteArrayView viewOf(std::span<const std::uint8_t> bytes) {
    return {bytes.data(), static_cast<qsizetype>(bytes.size())};
}

std::vector<QImage> readIconGroup(ResourceBytes group) {
    std::vector<QImage> pictures;
    group.u16();
    if (group.u16() != kindIcon) return {};
    for (WORD left = group.u16(); left > 0 && !group.failed(); --left) {
        const auto entry = group.take(entryBeforeNumber);
        const auto picture = programResources().find(resourceType::icon, group.u16());
        if (group.failed() || !picture.has_value()) continue;
        QByteArray file(fileOfOnePicture, sizeof fileOfOnePicture);
        file.append(viewOf(entry)).append(offsetInFile, sizeof offsetInFile).append(viewOf(*picture));
        const QImage image = QImage::fromData(file, "ico");
        if (!image.isNull()) pictures.push_back(image);
    }
    return pictures;
}

std::nullptr_t notFound() {
    SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
    return nullptr;
}

HANDLE loadBitmap(LPCSTR name) {
    const auto resource = programResources().find(resourceType::bitmap, resourceId(name));
    if (!resource.has_value()) return notFound();
    const QImage image = QImage::fromData(viewOf(*resource), "dib");
    if (image.isNull()) return notFound();
    return bitmaps.add(std::make_unique<QImage>(image.convertToFormat(QImage::Format_RGB32)));
}

}  // namespace

std::vector<QImage> picturesOf(HICON icon) {
    const std::vector<QImage>* const found = icons.find(icon);
    return found == nullptr ? std::vector<QImage>() : *found;
}

QImage* bitmapOf(const void* bitmap) {
    return bitmaps.find(bitmap);
}

HBITMAP emptyBitmap() {
    static const HANDLE bitmap = bitmaps.add(std::make_unique<QImage>(1, 1, QImage::Format_RGB32));
    return static_cast<HBITMAP>(bitmap);
}

bool deleteBitmap(HGDIOBJ bitmap) {
    return bitmap != emptyBitmap() && bitmaps.take(bitmap) != nullptr;
}

HICON LoadIconA(HINSTANCE, LPCSTR name) {
    const auto group = programResources().find(resourceType::iconGroup, resourceId(name));
    if (!group.has_value()) return notFound();
    std::vector<QImage> pictures = readIconGroup(ResourceBytes(*group));
    if (pictures.empty()) return notFound();
    return static_cast<HICON>(icons.add(std::make_unique<std::vector<QImage>>(std::move(pictures))));
}

HANDLE LoadImageA(HINSTANCE, LPCSTR name, UINT type, int, int, UINT) {
    return type == IMAGE_BITMAP ? loadBitmap(name) : nullptr;
}
