// Compiled resources (`.res`): a sequence of entries, each aligned to 4 bytes:
//
//     size of the contents (4), size of this header (4), type, name, padding to 4,
//     versions, flags and language (16), the contents
//
// Type and name are FFFF and a number, or a UTF-16 text. If entries share type and name, in several languages, the
// first is used. A damaged entry ends the file; those before it are found.
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
    // `bytes` must outlive this object and the results of `find`.
    explicit ResourceFile(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    std::optional<std::span<const std::uint8_t>> find(WORD type, WORD id) const;

    // Entry `id` of the string table as Windows-1252; empty if there is none.
    std::string string(UINT id) const;

 private:
    std::span<const std::uint8_t> bytes_;
};

// The program's resources; empty if none were built in.
const ResourceFile& programResources();

// The id in a name made by MAKEINTRESOURCEA; 0, which no resource has, for a real name.
WORD resourceId(LPCSTR name);

#endif
