// The 4 bytes that tie a family member to a character file.
#ifndef WORLD_GUID_H
#define WORLD_GUID_H

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string_view>

// Compared as text: bytes behind a zero byte don't count, and a GUID whose first byte is zero is empty.
class Guid {
 public:
    Guid() = default;
    explicit Guid(const std::array<std::uint8_t, 4>& bytes) { std::copy(bytes.begin(), bytes.end(), bytes_.begin()); }

    // The 4 bytes as they are in files.
    std::span<const std::uint8_t, 4> bytes() const { return std::span(bytes_).first<4>(); }

    friend bool operator==(const Guid& a, const Guid& b) { return a.text() == b.text(); }

 private:
    std::string_view text() const { return reinterpret_cast<const char*>(bytes_.data()); }

    std::array<std::uint8_t, 5> bytes_{};
};

#endif
