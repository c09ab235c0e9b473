#include "world/content_sum.h"

#include <zlib.h>

void ContentSum::add(std::span<const std::uint8_t> bytes) {
    size += static_cast<std::int64_t>(bytes.size());
    checksum = static_cast<std::uint32_t>(crc32_z(checksum, bytes.data(), bytes.size()));
}
