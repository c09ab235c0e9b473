// Writes a family's record into the temporary neighborhood file: in its place, or into a copy of the template for a
// family that the file doesn't hold yet.
#include <array>

#include "platform/byte_order.h"
#include "save/template_layout.h"
#include "world/neighborhood.h"

// Only the bytes from the funds to the end of the table as it was read are written. The room of a member that has left
// becomes zeros.
int Family::rewriteRecord(StreamView stream) {
    namespace at = familyRecord;
    if (!stream.good() || memberCount_ * at::guidSize > tableSize()) return -1;
    const at::Bytes record = recordBytes();
    const std::size_t end = at::memberTable + static_cast<std::size_t>(tableSize());
    stream.writeAt(memberTableOffset_ - at::memberTable + at::funds, std::span(record).first(end).subspan<at::funds>());
    if (!stream.good()) return -1;
    dirty_ = false;
    return 1;
}

int Family::writeNewRecord(StreamView stream, std::int32_t position) {
    namespace at = familyTemplate;
    if (!stream.good()) return -1;
    familyNumber_ = neighborhood_->takeFamilyNumber();
    const std::int32_t nameChunk = format().familyNameChunk;
    for (const std::int32_t offset : {at::chunkNumber, at::number, nameChunk + at::chunkNumber}) {
        stream.writeAt(position + offset, u16Le(static_cast<std::uint16_t>(familyNumber_)));
    }
    stream.writeAt(position + at::funds, u16Le(static_cast<std::uint16_t>(funds_ & 0xFFFF)));
    stream.writeAt(position + at::member, memberGuid(0).bytes());

    const std::string_view name = name_.view().substr(0, at::longestName);
    stream.writeAt(position + nameChunk + familyName::name, name);
    constexpr std::array<std::uint8_t, at::nameEndSize> nameEnd{0x00, 0x00, 0xA3};
    stream.write(nameEnd);
    stream.writeZeros(at::nameRoom - static_cast<std::int32_t>(name.size()));
    if (!stream.good()) return -1;
    dirty_ = false;
    return 1;
}
