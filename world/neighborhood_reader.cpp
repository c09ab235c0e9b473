// Reads "neighborhood.iff" in three passes over its bytes: for the neighbors, the families and the first free chunk.
#include <algorithm>

#include "platform/byte_order.h"
#include "platform/files.h"
#include "platform/fixed_text.h"
#include "world/neighborhood.h"
#include "world/tag_scan.h"

namespace {

// The file is read at once, unless it is far larger than any real neighborhood.
constexpr std::int64_t largestWindow = 16 << 20;

std::int16_t kindOf(std::span<const std::uint8_t, neighborRecord::size> record) {
    return readI16Le(record.subspan<neighborRecord::kind, 2>());
}

bool isKnownKind(std::int16_t kind) {
    return kind >= genderNumber::male && kind <= neighborRecord::highestPetKind;
}

}  // namespace

int Neighborhood::load(const char* directory, const char* fileName, RecordFormats formats) {
    directory_.assign(directory);
    const auto path = joined<PathText>(directory, '\\', fileName);
    fileSize_ = sizeOfFile(path.c_str());
    fileName_.assign(fileName);

    StreamFile file;
    const auto window = static_cast<std::size_t>(std::min<std::int64_t>(fileSize_ + std::int64_t{1}, largestWindow));
    if (!file.open(path.c_str(), StreamFile::Access::read, window)) return -1;
    readPasses(StreamView(file), formats);
    sumAsRead_ = file.sum();
    return 0;
}

// If the file ends in the header, this view's flags go up, and every pass ends at once.
void Neighborhood::readPasses(StreamView stream, RecordFormats formats) {
    mapOffset_ = readMapOffset(stream);
    readNeighbors(stream, formats);
    stream.seek(0);
    while (familyAhead(stream) == 1) {
        readFamily(stream);
    }
    stream.seek(0);
    xxxxOffset_ = findTag(stream, freeChunkTag, fileSize_) - 1;
}

// A pass for each format. The Sims are in the order of the file, whatever formats it mixes.
void Neighborhood::readNeighbors(StreamView stream, RecordFormats formats) {
    const SteadyDirectories steady;  // each record asks for the size of a file in the same directory
    const std::int64_t start = stream.tell();
    for (const RecordFormat& format : formats) {
        stream.seek(start);
        while (nextNeighbor(stream, format.marker) == 1) {
            readNeighbor(stream, format);
        }
    }
    std::ranges::sort(std::span(sims_).first(static_cast<std::size_t>(simCount_)), {}, &Sim::recordOffset);
}

// Returns 1 with the cursor on a record's name, 0 if there are no more records, or -4 at the end of the file.
int Neighborhood::nextNeighbor(StreamView stream, std::string_view marker) const {
    while (!stream.endOfFile()) {
        const std::int32_t hit = findTag(stream, marker, fileSize_);
        if (hit < 1) return 0;
        stream.seek(hit + static_cast<int>(marker.size()) - 1);
        const auto prefix = stream.readBytes<neighborRecord::namePrefix.size()>();
        if (std::equal(prefix.begin(), prefix.end(), neighborRecord::namePrefix.begin())) {
            stream.seek(stream.tell() - static_cast<int>(prefix.size()));
            return 1;
        }
        stream.skip(1);  // the next search begins 5 bytes behind the end of this marker
    }
    return tagNotFound;
}

// Returns 1, or -2 for a record of an unknown kind, with the cursor just behind the kind, or of mode 0. A record that
// the end of the file cuts off is dropped, because rewriting it would make the file longer.
int Neighborhood::readNeighbor(StreamView stream, const RecordFormat& format) {
    std::array<std::uint8_t, neighborRecord::size> record{};
    constexpr std::size_t kindEnd = neighborRecord::kind + 2;
    const auto recordOffset = static_cast<std::int32_t>(stream.tell()) - neighborRecord::name;
    stream.seek(recordOffset);
    stream.read(std::span(record).first<kindEnd>());
    if (format.version && record[neighborRecord::version] == 0) {
        stream.seek(recordOffset + neighborRecord::name);  // no person data follow, so the next record is near
        return -2;
    }
    if (!isKnownKind(kindOf(record))) return -2;
    stream.read(std::span(record).subspan<kindEnd>());
    if (!stream.good() || simCount_ >= highestSimCount) return 1;

    auto sim = std::make_unique<Sim>(*this, format);
    sim->readRecord(record, recordOffset);
    sims_[static_cast<std::size_t>(simCount_)] = sim.get();
    ++simCount_;
    ownedSims_.push_back(std::move(sim));
    return 1;
}

// Returns 1 if there is another family's chunk, else 0; -4 at the end of the file. A hit leaves the cursor behind the
// last family's name, where the search for the next record begins.
int Neighborhood::familyAhead(StreamView stream) const {
    if (stream.endOfFile()) return tagNotFound;
    return findTag(stream, familyRecord::chunkTag, fileSize_) > 0 ? 1 : 0;
}

// Returns 1, or -1 for a family of more than 8 members. A family without a whole record and name isn't listed; it
// leaves the cursor at the end of the file, which ends the pass.
int Neighborhood::readFamily(StreamView stream) {
    Family* const family = ownedFamilies_.emplace_back(std::make_unique<Family>(*this)).get();
    const int result = family->read(stream, fileSize_);
    highestFamilyNumber_ = std::max<std::int32_t>(highestFamilyNumber_, family->familyNumber());
    if (result != 1) return result == 0 ? 1 : result;
    if (family->name() == familyName::unlisted || familyCount_ >= highestFamilyCount) return 1;
    families_[static_cast<std::size_t>(familyCount_)] = family;
    ++familyCount_;
    return 1;
}
