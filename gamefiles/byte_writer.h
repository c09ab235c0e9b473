// Writes the bytes of the game's files. The readers in world/ and the writers in save/ share no code with it, so a test
// that compares the two finds a wrong byte order in either.
#ifndef GAMEFILES_BYTE_WRITER_H
#define GAMEFILES_BYTE_WRITER_H

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

using Bytes = std::vector<std::uint8_t>;

// Appends to a growing sequence of bytes. A number that is too large for its width loses its high bits.
class ByteWriter {
 public:
    ByteWriter& u8(std::int64_t value);
    ByteWriter& u16Le(std::int64_t value);
    ByteWriter& u32Le(std::int64_t value);
    ByteWriter& u16Be(std::int64_t value);
    ByteWriter& u32Be(std::int64_t value);

    // The characters without a terminator.
    ByteWriter& text(std::string_view characters);
    // Exactly `width` bytes: the characters, cut or followed by zero bytes.
    ByteWriter& field(std::string_view characters, std::size_t width);
    ByteWriter& bytes(const Bytes& more);
    // Appends `value` until there are `size` bytes in all. Does nothing if there are as many already.
    ByteWriter& fillTo(std::size_t size, std::uint8_t value = 0);

    std::size_t size() const { return bytes_.size(); }
    const Bytes& written() const { return bytes_; }

 private:
    Bytes bytes_;
};

#endif
