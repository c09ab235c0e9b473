// A family's record in the temporary neighborhood file: patched where the file holds it already, put together in the
// template's 232 bytes where it doesn't.
#include <array>

#include "platform/byte_order.h"
#include "save/template_layout.h"
#include "world/family.h"

// 1, or -1 on a stream in a bad state or for more members than the table had when it was read. The room of a member
// that left is filled up with zeros; nothing behind the table is touched.
int Family::rewriteRecord(StreamView stream) {
    using namespace familyRecord;
    if (!stream.good() || memberCount_ * guidSize > tableSize()) return -1;
    const Bytes record = recordBytes();
    stream.seek(memberTableOffset_ - memberTable + familyRecord::funds);
    stream.write(
        std::span(record).first(static_cast<std::size_t>(memberTable + tableSize())).subspan<familyRecord::funds>());
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
