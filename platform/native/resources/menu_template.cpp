#include "platform/native/resources/menu_template.h"

#include "platform/native/resources/resource_file.h"

namespace {

constexpr WORD grayedItem = 0x01;
constexpr WORD disabledItem = 0x02;
constexpr WORD popupItem = 0x10;
constexpr WORD lastItem = 0x80;
constexpr int greatestDepth = 8;

std::vector<MenuItem> readItems(ResourceBytes& bytes, int depth) {
    std::vector<MenuItem> items;
    for (WORD flags = 0; (flags & lastItem) == 0 && !bytes.failed();) {
        flags = bytes.u16();
        MenuItem item;
        item.isPopup = (flags & popupItem) != 0;
        item.grayed = (flags & (grayedItem | disabledItem)) != 0;
        if (!item.isPopup) item.id = bytes.u16();
        item.text = QString::fromStdU16String(bytes.text());
        if (item.isPopup && depth == greatestDepth) bytes.fail();
        if (item.isPopup && !bytes.failed()) item.items = readItems(bytes, depth + 1);
        items.push_back(std::move(item));
    }
    return items;
}

}  // namespace

std::optional<std::vector<MenuItem>> readMenuTemplate(ResourceBytes bytes) {
    if (bytes.u16() != 0) return std::nullopt;
    bytes.take(bytes.u16());
    std::vector<MenuItem> items = readItems(bytes, 1);
    if (bytes.failed()) return std::nullopt;
    return items;
}

std::optional<std::vector<MenuItem>> loadMenuTemplate(LPCSTR name) {
    const auto resource = programResources().find(resourceType::menu, resourceId(name));
    if (!resource.has_value()) return std::nullopt;
    return readMenuTemplate(ResourceBytes(*resource));
}
