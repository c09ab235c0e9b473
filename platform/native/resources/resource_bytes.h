// A cursor over the little-endian bytes of a compiled resource. After the first read beyond the end, all reads return
// zeros and empty texts and `failed` is true, so a parser checks once at its end.
#ifndef PLATFORM_NATIVE_RESOURCES_RESOURCE_BYTES_H
#define PLATFORM_NATIVE_RESOURCES_RESOURCE_BYTES_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

// A type, class or name: a text, or a number if the text is empty.
struct ResourceName {
    std::u16string text;
    std::uint16_t id = 0;
    bool isId(std::uint16_t wanted) const { return text.empty() && id == wanted; }
};

class ResourceBytes {
 public:
    explicit ResourceBytes(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    std::uint16_t u16();
    std::int16_t i16() { return static_cast<std::int16_t>(u16()); }
    std::uint32_t u32();

    std::u16string text();  // up to and including its zero
    std::u16string text(std::size_t length);
    ResourceName name();  // FFFF and a number, or a text

    std::span<const std::uint8_t> take(std::size_t size);

    // Skips to the next multiple of 4, counted from the first byte. Reaching the end is no failure.
    void align4();

    std::size_t left() const { return bytes_.size() - at_; }
    bool failed() const { return failed_; }
    void fail();

 private:
    std::span<const std::uint8_t> bytes_;
    std::size_t at_ = 0;
    bool failed_ = false;
};

#endif
