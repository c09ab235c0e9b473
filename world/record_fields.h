// The two ways through a record's list of fields. A record lists its fields once, each with its offset and its member.
// FieldReader fills the members from the bytes, FieldWriter puts the members into the bytes, so no field can be read
// and then forgotten in writing. Numbers are little-endian; offsets count from the record's first byte.
#ifndef WORLD_RECORD_FIELDS_H
#define WORLD_RECORD_FIELDS_H

#include <algorithm>
#include <cstdint>
#include <span>
#include <string_view>

#include "platform/byte_order.h"
#include "platform/fixed_text.h"

class FieldReader {
 public:
    // `record` may be cut short: a member whose field isn't there whole keeps its value.
    explicit FieldReader(std::span<const std::uint8_t> record) : record_(record) {}

    // Text that fills the field, or ends in it with a zero byte.
    template <std::size_t N>
    void text(std::size_t offset, FixedText<N>& member) const {
        if (!has(offset, N)) return;
        const std::string_view field(reinterpret_cast<const char*>(record_.data()) + offset, N);
        member.assign(field.substr(0, field.find('\0')));
    }

    void signedByte(std::size_t offset, std::int16_t& member) const {
        if (!has(offset, 1)) return;
        const int byte = record_[offset];
        member = static_cast<std::int16_t>(byte < 0x80 ? byte : byte - 0x100);
    }

    // 2 bytes, signed if the member is.
    template <typename Member>
    void word(std::size_t offset, Member& member) const {
        if (has(offset, 2)) member = static_cast<Member>(readI16Le(record_.subspan(offset).first<2>()));
    }

    void words(std::size_t offset, std::span<std::uint16_t> members) const {
        for (std::uint16_t& member : members) {
            word(offset, member);
            offset += 2;
        }
    }

    // 4 bytes, signed.
    void longWord(std::size_t offset, std::int32_t& member) const {
        if (has(offset, 4)) member = readI32Le(record_.subspan(offset).first<4>());
    }

 private:
    bool has(std::size_t offset, std::size_t size) const {
        return offset <= record_.size() && record_.size() - offset >= size;
    }

    std::span<const std::uint8_t> record_;
};

class FieldWriter {
 public:
    // `record` has room for every field of the list.
    explicit FieldWriter(std::span<std::uint8_t> record) : record_(record) {}

    template <std::size_t N>
    void text(std::size_t offset, const FixedText<N>& member) const {
        std::ranges::copy(member.view(), record_.subspan(offset).begin());
    }

    void signedByte(std::size_t offset, std::int16_t member) const {
        record_[offset] = static_cast<std::uint8_t>(member);
    }

    template <typename Member>
    void word(std::size_t offset, Member member) const {
        std::ranges::copy(u16Le(static_cast<std::uint16_t>(member)), record_.subspan(offset).begin());
    }

    void words(std::size_t offset, std::span<const std::uint16_t> members) const {
        for (const std::uint16_t member : members) {
            word(offset, member);
            offset += 2;
        }
    }

    void longWord(std::size_t offset, std::int32_t member) const {
        std::ranges::copy(u32Le(static_cast<std::uint32_t>(member)), record_.subspan(offset).begin());
    }

 private:
    std::span<std::uint8_t> record_;
};

#endif
