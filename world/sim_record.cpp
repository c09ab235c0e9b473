// The Sim's half of the neighbor record's reading.
#include <algorithm>
#include <limits>

#include "platform/byte_order.h"
#include "platform/files.h"
#include "world/neighborhood.h"
#include "world/sim.h"

namespace {

std::span<const std::uint8_t, 2> wordAt(std::span<const std::uint8_t, neighborRecord::size> record, int offset) {
    return record.subspan(static_cast<std::size_t>(offset)).first<2>();
}

std::int16_t signedByte(std::uint8_t byte) {
    return static_cast<std::int16_t>(byte < 0x80 ? byte : byte - 0x100);
}

std::int32_t sizeOfFile(const char* path) {
    FileStatus status{};
    if (!queryFileStatus(path, status)) return 0;
    return static_cast<std::int32_t>(std::min<std::int64_t>(status.size, std::numeric_limits<std::int32_t>::max()));
}

}  // namespace

void Sim::readRecord(std::span<const std::uint8_t, neighborRecord::size> record, std::int32_t recordOffset) {
    using namespace neighborRecord;
    recordOffset_ = recordOffset;
    // A shorter name than the game's own is closed by a zero byte.
    const std::string_view field(reinterpret_cast<const char*>(record.data()) + neighborRecord::name, nameSize);
    recordName_.assign(field.substr(0, field.find('\0')));
    version_ = signedByte(record[neighborRecord::version]);
    for (int k = 0; k < personValueCount; ++k) {
        personValues_[static_cast<std::size_t>(k)] = readU16Le(wordAt(record, valueOffset(k)));
    }
    age_ = readI16Le(wordAt(record, neighborRecord::age));
    skinTone_ = readI16Le(wordAt(record, neighborRecord::skinTone));
    recordWordA_ = readU16Le(wordAt(record, wordA));
    recordWordB_ = readU16Le(wordAt(record, wordB));
    gender_ = std::min(readI16Le(wordAt(record, kind)), genderWord::pet);
    for (int k = 0; k < tailWordCount; ++k) {
        tailWords_[static_cast<std::size_t>(k)] = readU16Le(wordAt(record, neighborRecord::tailWords + 2 * k));
    }

    fileName_.assign(recordName_.c_str());
    fileName_.append(".iff");
    filePath_.assign(neighborhood_->directory());
    filePath_.append("\\Characters\\");
    filePath_.append(fileName_);
    fileSize_ = sizeOfFile(filePath_.c_str());
}
