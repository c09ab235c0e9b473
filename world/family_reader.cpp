// The reading of a family: its record inside "FAMI", found by "IMAF", and its name in "FAMs".
#include "platform/byte_order.h"
#include "world/family.h"
#include "world/tag_scan.h"

int Family::read(StreamView stream, std::int32_t fileSize, bool& numberRead) {
    using namespace familyRecord;
    const std::int32_t record = findTag(stream, recordTag, fileSize);
    if (record < 0) return 0;
    stream.seek(record);
    stream.skip(3);

    stream.skip(number - static_cast<int>(recordTag.size()));
    familyNumber_ = readI16Le(stream.readBytes<2>());
    numberRead = !stream.failed();
    stream.skip(2);
    funds_ = readI32Le(stream.readBytes<4>());
    for (auto& word : familyWords_) {
        word = readU16Le(stream.readBytes<2>());
    }
    memberCount_ = readI16Le(stream.readBytes<2>());
    familyTailWord_ = readU16Le(stream.readBytes<2>());
    if (!readMemberTable(stream)) return -1;

    const std::int32_t nameChunk = findTag(stream, familyName::chunkTag, fileSize);
    if (nameChunk < 0) return 0;
    stream.seek(nameChunk);
    stream.skip(3);
    stream.skip(familyName::name - static_cast<int>(familyName::chunkTag.size()));
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

// False if the file ends before the name does. The last pair of an odd name takes one byte of what stands behind: the
// pad byte that the game writes there, or, without one, the first letter of the next chunk, which then isn't found.
bool Family::readName(StreamView& stream) {
    for (;;) {
        const auto pair = stream.readBytes<2>();
        if (!stream.good()) return false;
        if (pair[0] == 0) return true;
        name_.append(static_cast<char>(pair[0]));
        if (pair[1] != 0) name_.append(static_cast<char>(pair[1]));
    }
}
