// Reads and writes the numbers in files. All are little-endian but one: the offset at the head of the game's IFF files
// is big-endian. Shifts keep this independent of the host's byte order and of alignment; compilers make one load or
// store of them.
#ifndef PLATFORM_BYTE_ORDER_H
#define PLATFORM_BYTE_ORDER_H

#include <array>
#include <cstdint>
#include <span>

constexpr std::uint16_t readU16Le(std::span<const std::uint8_t, 2> b) {
    return static_cast<std::uint16_t>(b[0] | b[1] << 8);
}

constexpr std::uint32_t readU24Le(std::span<const std::uint8_t, 3> b) {
    return static_cast<std::uint32_t>(b[0]) | static_cast<std::uint32_t>(b[1]) << 8 |
           static_cast<std::uint32_t>(b[2]) << 16;
}

constexpr std::uint32_t readU24Be(std::span<const std::uint8_t, 3> b) {
    return static_cast<std::uint32_t>(b[0]) << 16 | static_cast<std::uint32_t>(b[1]) << 8 |
           static_cast<std::uint32_t>(b[2]);
}

constexpr std::uint32_t readU32Le(std::span<const std::uint8_t, 4> b) {
    return static_cast<std::uint32_t>(readU16Le(b.first<2>())) | static_cast<std::uint32_t>(readU16Le(b.last<2>()))
                                                                     << 16;
}

constexpr std::int16_t readI16Le(std::span<const std::uint8_t, 2> b) {
    return static_cast<std::int16_t>(readU16Le(b));
}

constexpr std::int32_t readI32Le(std::span<const std::uint8_t, 4> b) {
    return static_cast<std::int32_t>(readU32Le(b));
}

constexpr std::array<std::uint8_t, 2> u16Le(std::uint16_t value) {
    return {static_cast<std::uint8_t>(value & 0xFF), static_cast<std::uint8_t>(value >> 8)};
}

constexpr std::array<std::uint8_t, 4> u32Le(std::uint32_t value) {
    return {static_cast<std::uint8_t>(value & 0xFF), static_cast<std::uint8_t>(value >> 8 & 0xFF),
            static_cast<std::uint8_t>(value >> 16 & 0xFF), static_cast<std::uint8_t>(value >> 24)};
}

static_assert(readU16Le(std::array<std::uint8_t, 2>{0x1B, 0x00}) == 27);
static_assert(readI16Le(std::array<std::uint8_t, 2>{0xFF, 0xFF}) == -1);
static_assert(readU24Be(std::array<std::uint8_t, 3>{0x01, 0x02, 0x03}) == 0x010203);
static_assert(readU24Le(std::array<std::uint8_t, 3>{0x01, 0x02, 0x03}) == 0x030201);
static_assert(readU32Le(std::array<std::uint8_t, 4>{0x78, 0x56, 0x34, 0x12}) == 0x12345678);

#endif
