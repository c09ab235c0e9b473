#include "gamefiles/byte_writer.h"

#include <algorithm>

ByteWriter& ByteWriter::u8(std::int64_t value) {
    bytes_.push_back(static_cast<std::uint8_t>(value & 0xFF));
    return *this;
}

ByteWriter& ByteWriter::u16Le(std::int64_t value) {
    return u8(value).u8(value >> 8);
}

ByteWriter& ByteWriter::u32Le(std::int64_t value) {
    return u16Le(value).u16Le(value >> 16);
}

ByteWriter& ByteWriter::u16Be(std::int64_t value) {
    return u8(value >> 8).u8(value);
}

ByteWriter& ByteWriter::u32Be(std::int64_t value) {
    return u16Be(value >> 16).u16Be(value);
}

ByteWriter& ByteWriter::text(std::string_view characters) {
    for (const char character : characters) {
        u8(character);
    }
    return *this;
}

ByteWriter& ByteWriter::field(std::string_view characters, std::size_t width) {
    const std::size_t end = size() + width;
    return text(characters.substr(0, width)).fillTo(end);
}

ByteWriter& ByteWriter::bytes(const Bytes& more) {
    bytes_.insert(bytes_.end(), more.begin(), more.end());
    return *this;
}

ByteWriter& ByteWriter::fillTo(std::size_t size, std::uint8_t value) {
    bytes_.resize(std::max(size, bytes_.size()), value);
    return *this;
}
