// Reads and writes a family's record, both by one list of its fields, and reads the family's name.
#include "world/family.h"
#include "world/record_fields.h"
#include "world/tag_scan.h"

template <typename Direction>
void Family::passFields(const Direction& direction) {
    namespace at = familyRecord;
    direction.word(at::number, familyNumber_);
    direction.longWord(at::funds, funds_);
    direction.words(at::words, familyWords_);
    direction.word(at::memberCount, memberCount_);
    direction.word(at::tailWord, familyTailWord_);
}

int Family::read(StreamView stream, std::int32_t fileSize) {
    const std::int32_t record = findTag(stream, familyRecord::recordTag, fileSize) - 1;
    if (record < 0) return 0;
    stream.seek(record);
    const auto fields = stream.readBytes<familyRecord::memberTable>();
    passFields(FieldReader(std::span(fields).first(static_cast<std::size_t>(stream.tell() - record))));
    if (!readMemberTable(stream)) return -1;

    const std::int32_t nameChunk = findTag(stream, familyName::chunkTag, fileSize);
    if (nameChunk < 0) return 0;
    stream.seek(nameChunk - 1);
    stream.skip(familyName::name);
    return readName(stream) ? 1 : 0;
}

bool Family::readMemberTable(StreamView& stream) {
    memberTableOffset_ = static_cast<std::int32_t>(stream.tell());
    for (std::int32_t i = 0; i < memberCount_; ++i) {
        if (i >= familyRecord::highestMemberCount) return false;
        memberGuids_[static_cast<std::size_t>(i)] = Guid(stream.readBytes<familyRecord::guidSize>());
    }
    memberTableEnd_ = static_cast<std::int32_t>(stream.tell());
    return true;
}

// False if the file ends before the name does. The pair that ends a name of odd length takes one byte from behind the
// name. The game writes a pad byte there; if it is missing, the next chunk loses its first letter and isn't found.
bool Family::readName(StreamView& stream) {
    for (;;) {
        const auto pair = stream.readBytes<2>();
        if (!stream.good()) return false;
        if (pair[0] == 0) return true;
        name_.append(static_cast<char>(pair[0]));
        if (pair[1] != 0) name_.append(static_cast<char>(pair[1]));
    }
}

familyRecord::Bytes Family::recordBytes() {
    familyRecord::Bytes record{};
    passFields(FieldWriter(record));
    auto place = record.begin() + familyRecord::memberTable;
    for (std::int32_t i = 0; i < memberCount_; ++i) {
        place = std::ranges::copy(memberGuid(static_cast<std::size_t>(i)).bytes(), place).out;
    }
    return record;
}
