// Compiled resources (`.res`): one entry after the other, each at a multiple of 4:
//
//     size of the contents (4), size of this header (4), type, name, filled up to 4,
//     versions, flags and language (16), the contents
//
// Type and name are a number behind FFFF or a UTF-16 text. Among entries of one type and name, for several languages,
// the first is taken. A damaged entry ends the file: what stands before it is found.
#ifndef PLATFORM_NATIVE_RESOURCES_RESOURCE_FILE_H
#define PLATFORM_NATIVE_RESOURCES_RESOURCE_FILE_H

#include <optional>
#include <span>

#include "platform/native/api/types.h"
#include "platform/native/resources/resource_bytes.h"

namespace resourceType {
constexpr WORD bitmap = 2;
constexpr WORD icon = 3;  // one picture of an icon
constexpr WORD menu = 4;
constexpr WORD dialog = 5;
constexpr WORD stringTable = 6;
constexpr WORD accelerators = 9;
constexpr WORD iconGroup = 14;
}  // namespace resourceType

class ResourceFile {
 public:
    // `bytes` must outlive this object and what it finds.
    explicit ResourceFile(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    std::optional<std::span<const std::uint8_t>> find(WORD type, WORD id) const;

    // Entry `id` of the string table as Windows-1252; empty if there is none.
    std::string string(UINT id) const;

 private:
    std::span<const std::uint8_t> bytes_;
};

// The program's own; empty if none were built in.
const ResourceFile& programResources();

// The number in a name of MAKEINTRESOURCEA; 0, which no resource has, for a real name.
WORD resourceId(LPCSTR name);

#endif
