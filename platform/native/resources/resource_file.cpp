#include "platform/native/resources/resource_file.h"

#include <algorithm>
#include <cstring>

#include "platform/native/api/resources.h"
#include "platform/native/base/text1252.h"

extern "C" {
// Null when no resources were built in.
extern const unsigned char platformResourcesBegin[] __attribute__((weak));
extern const unsigned char platformResourcesEnd[] __attribute__((weak));
}

namespace {

constexpr std::size_t smallestHeader = 32;  // with type and name as numbers
constexpr std::size_t sizesOfEntry = 8;
constexpr UINT stringsPerTable = 16;

struct Entry {
    ResourceName type;
    ResourceName name;
    std::span<const std::uint8_t> contents;
};

// False at the end, and at an incomplete entry.
bool nextEntry(ResourceBytes& file, Entry& entry) {
    const std::uint32_t size = file.u32();
    const std::uint32_t headerSize = file.u32();
    if (file.failed() || headerSize < smallestHeader) return false;
    ResourceBytes header(file.take(headerSize - sizesOfEntry));
    entry.type = header.name();
    entry.name = header.name();
    entry.contents = file.take(size);
    file.align4();
    return !file.failed() && !header.failed();
}

}  // namespace

std::optional<std::span<const std::uint8_t>> ResourceFile::find(WORD type, WORD id) const {
    ResourceBytes file(bytes_);
    for (Entry entry; file.left() > 0 && nextEntry(file, entry);) {
        if (entry.type.isId(type) && entry.name.isId(id)) return entry.contents;
    }
    return std::nullopt;
}

std::string ResourceFile::string(UINT id) const {
    const auto table = find(resourceType::stringTable, static_cast<WORD>(id / stringsPerTable + 1));
    if (!table.has_value()) return {};
    ResourceBytes bytes(*table);
    for (UINT i = 0; i < id % stringsPerTable; ++i) {
        bytes.text(bytes.u16());
    }
    std::string text;
    for (const char16_t unit : bytes.text(bytes.u16())) {
        text.push_back(static_cast<char>(byte1252FromUnicode(unit)));
    }
    return bytes.failed() ? std::string() : text;
}

const ResourceFile& programResources() {
    static const ResourceFile resources = platformResourcesBegin == nullptr
                                              ? ResourceFile({})
                                              : ResourceFile({platformResourcesBegin, platformResourcesEnd});
    return resources;
}

WORD resourceId(LPCSTR name) {
    const auto number = reinterpret_cast<std::uintptr_t>(name);
    return number <= 0xFFFF ? static_cast<WORD>(number) : WORD{0};
}

int LoadStringA(HINSTANCE, UINT id, LPSTR text, int size) {
    if (text == nullptr || size <= 0) return 0;
    const std::string found = programResources().string(id);
    const std::size_t length = std::min(found.size(), static_cast<std::size_t>(size) - 1);
    std::memcpy(text, found.data(), length);
    text[length] = '\0';
    return static_cast<int>(length);
}
