#include "platform/native/resources/resource_bytes.h"

#include <algorithm>

#include "platform/byte_order.h"

void ResourceBytes::fail() {
    failed_ = true;
    at_ = bytes_.size();
}

std::span<const std::uint8_t> ResourceBytes::take(std::size_t size) {
    if (size > left()) fail();
    if (failed_) return {};
    const auto taken = bytes_.subspan(at_, size);
    at_ += size;
    return taken;
}

std::uint16_t ResourceBytes::u16() {
    const auto b = take(2);
    return b.empty() ? std::uint16_t{0} : readU16Le(b.first<2>());
}

std::uint32_t ResourceBytes::u32() {
    const auto b = take(4);
    return b.empty() ? 0 : readU32Le(b.first<4>());
}

std::u16string ResourceBytes::text() {
    std::u16string text;
    for (char16_t unit = u16(); unit != 0; unit = u16()) {
        text.push_back(unit);
    }
    return text;
}

std::u16string ResourceBytes::text(std::size_t length) {
    std::u16string text;
    for (std::size_t i = 0; i < length && !failed_; ++i) {
        text.push_back(u16());
    }
    return text;
}

ResourceName ResourceBytes::name() {
    constexpr char16_t numberFollows = 0xFFFF;
    const char16_t first = u16();
    if (first == numberFollows) return {{}, u16()};
    if (first == 0) return {};
    return {first + text(), 0};
}

void ResourceBytes::align4() {
    take(std::min(left(), (4 - at_ % 4) % 4));
}
