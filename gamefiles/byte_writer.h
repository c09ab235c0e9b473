// Bytes of a file in the making. The sample files are written through this one place, which the program knows nothing
// of: a slip in the program's byte order can't hide behind the same slip in its samples.
#ifndef GAMEFILES_BYTE_WRITER_H
#define GAMEFILES_BYTE_WRITER_H

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

using Bytes = std::vector<std::uint8_t>;

// Appends to a growing run of bytes. Numbers are given wide and written narrow: each call takes the low bits.
class ByteWriter {
 public:
    ByteWriter& u8(std::int64_t value);
    ByteWriter& u16Le(std::int64_t value);
    ByteWriter& u32Le(std::int64_t value);
    ByteWriter& u16Be(std::int64_t value);
    ByteWriter& u32Be(std::int64_t value);

    // The characters, without a terminator.
    ByteWriter& text(std::string_view characters);
    // The characters, cut at `width`, with zero bytes up to `width`.
    ByteWriter& field(std::string_view characters, std::size_t width);
    ByteWriter& bytes(const Bytes& more);
    // `value` over and over, until `size` bytes stand here; nothing if there are as many already.
    ByteWriter& fillTo(std::size_t size, std::uint8_t value = 0);

    std::size_t size() const { return bytes_.size(); }
    const Bytes& written() const { return bytes_; }

 private:
    Bytes bytes_;
};

// Overwrites 4 bytes at `offset`, high byte first. They must be there.
void putU32Be(Bytes& bytes, std::size_t offset, std::int64_t value);

#endif
