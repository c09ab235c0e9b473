// A family's record in the temporary neighborhood file: patched where the file holds it already, put together in the
// template's 232 bytes where it doesn't.
#include <array>

#include "platform/byte_order.h"
#include "save/template_layout.h"
#include "world/family.h"

// 1, or -1 on a stream in a bad state. Touches nothing behind the table as it stood when it was read: a member that
// left gives room that is filled up with zeros.
int Family::rewriteRecord(StreamView stream) {
    using namespace familyRecord;
    if (!stream.good() || memberTableOffset_ + memberCount_ * guidSize > memberTableEnd_) return -1;
    stream.seek(memberTableOffset_ - memberTable + familyRecord::funds);
    stream.write(u32Le(static_cast<std::uint32_t>(funds_)));
    for (const std::uint16_t word : familyWords_) {
        stream.write(u16Le(word));
    }
    stream.write(u16Le(static_cast<std::uint16_t>(memberCount_)));
    stream.write(u16Le(familyTailWord_));
    for (std::int32_t i = 0; i < memberCount_; ++i) {
        stream.write(memberGuid(static_cast<std::size_t>(i)).bytes());
    }
    stream.writeZeros(memberTableEnd_ - stream.tell());
    if (!stream.good()) return -1;
    dirty_ = false;
    return 1;
}

// 1, or -1 on a stream in a bad state. `position` is where the template's copy begins.
int Family::writeNewRecord(StreamView stream, std::int32_t position, std::int16_t familyNumber) {
    using namespace familyTemplate;
    if (!stream.good()) return -1;
    familyNumber_ = familyNumber;
    const auto numberBytes = u16Le(static_cast<std::uint16_t>(familyNumber_));
    for (const std::int32_t offset : {firstChunkNumber, number, nameChunkNumber}) {
        stream.seek(position + offset);
        stream.write(numberBytes);
    }
    stream.seek(position + familyTemplate::funds);
    stream.write(u16Le(static_cast<std::uint16_t>(funds_ & 0xFFFF)));
    stream.seek(position + familyTemplate::member);
    stream.write(memberGuid(0).bytes());

    const std::string_view name = name_.view().substr(0, longestName);
    stream.seek(position + familyTemplate::name);
    stream.write(name);
    constexpr std::array<std::uint8_t, nameEndSize> nameEnd{0x00, 0x00, 0xA3};
    stream.write(nameEnd);
    stream.writeZeros(nameRoom - static_cast<std::int32_t>(name.size()));
    if (!stream.good()) return -1;
    dirty_ = false;
    return 1;
}
