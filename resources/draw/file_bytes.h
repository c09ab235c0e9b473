// A file under construction: numbers are appended in little-endian order, unless the name says otherwise.
#ifndef RESOURCES_DRAW_FILE_BYTES_H
#define RESOURCES_DRAW_FILE_BYTES_H

#include <cstdint>
#include <vector>

#include "platform/byte_order.h"

class FileBytes {
 public:
    void u8(std::uint8_t value) { bytes_.push_back(value); }
    void u16(std::size_t value) { append(u16Le(static_cast<std::uint16_t>(value))); }
    void u32(std::size_t value) { append(u32Le(static_cast<std::uint32_t>(value))); }
    void u32Be(std::size_t value) {
        const auto reversed = u32Le(static_cast<std::uint32_t>(value));
        bytes_.insert(bytes_.end(), reversed.rbegin(), reversed.rend());
    }
    void append(const auto& bytes) { bytes_.insert(bytes_.end(), bytes.begin(), bytes.end()); }

    const std::vector<std::uint8_t>& bytes() const { return bytes_; }

 private:
    std::vector<std::uint8_t> bytes_;
};

#endif
