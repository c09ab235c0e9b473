#include "save/live_file.h"

#include "platform/byte_order.h"
#include "world/tag_scan.h"

namespace {

constexpr std::size_t pieceWindow = 256;

bool matchesAt(StreamView file, std::int32_t offset, std::string_view bytes) {
    file.seek(offset);
    return matchTagHere(file, bytes) == 1;
}

// Nothing is cut without new families. In a file without a free chunk and a map, as a save of new families leaves it,
// the header still has no map then.
bool isCutThere(StreamView file, const Neighborhood& neighborhood) {
    if (!neighborhood.hasNewFamilies()) return true;
    if (neighborhood.xxxxOffset() > 0) return matchesAt(file, neighborhood.xxxxOffset(), freeChunkTag);
    file.seek(iffHeader::mapOffset);
    return static_cast<std::int32_t>(readU24Be(file.readBytes<iffHeader::mapOffsetSize>())) == neighborhood.mapOffset();
}

// A record that an earlier save cut off isn't patched, so it needn't be there.
bool isRecordThere(StreamView file, const Sim& sim) {
    const std::int32_t record = sim.recordOffset();
    return record < 0 || matchesAt(file, record + neighborRecord::name, sim.recordName());
}

bool isFamilyThere(StreamView file, const Family& family) {
    using namespace familyRecord;
    const std::int32_t record = family.memberTableOffset() - memberTable;
    if (record < 0) return true;
    if (!matchesAt(file, record, recordTag)) return false;
    file.seek(record + number);
    if (readI16Le(file.readBytes<2>()) != family.familyNumber()) return false;
    file.seek(record + memberCount);
    // There may be fewer members than the table has room for, after an earlier save.
    const int count = readI16Le(file.readBytes<2>());
    return count >= 0 && count * guidSize <= family.tableSize();
}

}  // namespace

bool isAsRead(const char* path, const Neighborhood& neighborhood) {
    StreamFile file;
    if (!file.open(path, StreamFile::Access::read, pieceWindow)) return false;
    const StreamView view(file);
    for (std::int32_t i = 0; i < neighborhood.simCount(); ++i) {
        const Sim& sim = *neighborhood.sim(i);
        if (sim.recordDirty() && !isRecordThere(view, sim)) return false;
    }
    for (std::int32_t i = 0; i < neighborhood.familyCount(); ++i) {
        const Family& family = *neighborhood.family(i);
        if (family.dirty() && !isFamilyThere(view, family)) return false;
    }
    return isCutThere(view, neighborhood);
}
