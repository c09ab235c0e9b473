// Reads and writes a Sim's neighbor record, both by one list of its fields.
#include <algorithm>

#include "platform/fixed_text.h"
#include "world/neighborhood.h"
#include "world/record_fields.h"
#include "world/sim.h"

template <typename Direction>
void Sim::passFields(const Direction& direction) {
    namespace at = neighborRecord;
    const std::span<std::uint16_t> values(personValues_);
    direction.text(at::name, recordName_);
    direction.signedByte(at::version, version_);
    direction.words(at::firstValues, values.first(at::firstValueCount));
    direction.words(at::lastValues, values.subspan(at::firstValueCount));
    direction.word(at::age, age_);
    direction.word(at::skinTone, skinTone_);
    direction.word(at::wordA, recordWordA_);
    direction.word(at::wordB, recordWordB_);
    direction.word(at::kind, gender_);
    direction.words(at::tailWords, tailWords_);
}

void Sim::readRecord(std::span<const std::uint8_t, neighborRecord::size> record, std::int32_t recordOffset) {
    passFields(FieldReader(record));
    gender_ = std::min(gender_, genderNumber::pet);
    recordOffset_ = recordOffset;
    fileName_ = joined<decltype(fileName_)>(recordName_, ".iff");
    filePath_ = joined<DirectoryText>(neighborhood_->directory(), '\\', charactersDirectory, '\\', fileName_);
    fileSize_ = sizeOfFile(filePath_.c_str());
}

// Of the format's unknown bytes those of the stream, or zeros.
neighborRecord::Bytes Sim::recordBytes(StreamView& stream) {
    neighborRecord::Bytes record{};
    std::ranges::copy(neighborRecord::marker, record.begin());
    stream.seek(recordOffset_);
    if (format_->keepsUnknown) stream.read(record);
    passFields(FieldWriter(record));
    return record;
}
