#include "gamefiles/iff_builder.h"

#include <algorithm>

#include "gamefiles/character_ids.h"

namespace {

constexpr std::size_t mapOffsetField = iffHeaderSize - iffMapOffsetSize;
constexpr std::size_t typeSize = 4;
constexpr std::size_t labelSize = 64;

// What a deleted chunk leaves in the header of the free room.
constexpr std::uint16_t deletedId = 4101;
constexpr const char* deletedLabel = "old tree";

bool isBodyStrings(const IffChunk& chunk) {
    return chunk.type == "STR#" && chunk.id == bodyStringsId;
}

// The label takes an even number of bytes, its terminator included.
void writeMapEntry(ByteWriter& map, const IffChunk& header, std::size_t offset) {
    map.u32Le(static_cast<std::int64_t>(offset)).u16Le(header.id).u16Le(header.flags);
    const std::size_t terminated = header.label.size() + 1;
    map.field(header.label, terminated + terminated % 2);
}

}  // namespace

IffBuilder::IffBuilder() {
    file_ = ByteWriter()
                .text("IFF FILE 2.5:TYPE FOLLOWED BY SIZE")
                .u8(0)
                .text(" JAMIE DOORNBOS & MAXIS 1")
                .u32Be(0)
                .written();
}

std::size_t IffBuilder::append(const IffChunk& chunk) {
    const std::size_t offset = file_.size();
    const Bytes bytes = ByteWriter()
                            .field(chunk.type, typeSize)
                            .u32Be(static_cast<std::int64_t>(iffChunkHeaderSize + chunk.content.size()))
                            .u16Be(chunk.id)
                            .u16Be(chunk.flags)
                            .field(chunk.label, labelSize)
                            .bytes(chunk.content)
                            .written();
    file_.insert(file_.end(), bytes.begin(), bytes.end());
    return offset;
}

std::size_t IffBuilder::add(const IffChunk& chunk) {
    return add(chunk, chunk.label);
}

std::size_t IffBuilder::add(const IffChunk& chunk, const std::string& mapLabel) {
    const std::size_t offset = append(chunk);
    entries_.push_back({{chunk.type, chunk.id, mapLabel, {}, chunk.flags}, offset});
    return offset;
}

std::size_t IffBuilder::addFreeRoom(std::size_t size) {
    return append(
        {.type = "XXXX", .id = deletedId, .label = deletedLabel, .content = Bytes(size - iffChunkHeaderSize)});
}

void IffBuilder::padTo(std::size_t offset) {
    if (offset > size()) addFreeRoom(offset - size());
}

Bytes IffBuilder::mapContent() const {
    // The entry of the body strings comes first of all. Readers find it by the bytes 00 C8 00 10: the high byte of its
    // offset, its id and its flags. An earlier offset or label could contain the same bytes by chance.
    std::vector<MapEntry> entries = entries_;
    std::stable_partition(entries.begin(), entries.end(),
                          [](const MapEntry& entry) { return isBodyStrings(entry.header); });
    // The entries of each type together, the types in the order of their first entries.
    ByteWriter list;
    std::int64_t typeCount = 0;
    while (!entries.empty()) {
        const std::string type = entries.front().header.type;
        const auto others = std::stable_partition(entries.begin(), entries.end(),
                                                  [&type](const MapEntry& entry) { return entry.header.type == type; });
        list.text(std::string(type.rbegin(), type.rend())).u32Le(others - entries.begin());
        std::for_each(entries.begin(), others,
                      [&list](const MapEntry& entry) { writeMapEntry(list, entry.header, entry.offset); });
        entries.erase(entries.begin(), others);
        ++typeCount;
    }
    return ByteWriter()
        .u32Le(0)
        .u32Le(0)
        .text("pmsr")
        .u32Le(static_cast<std::int64_t>(list.size()))
        .u32Le(typeCount)
        .bytes(list.written())
        .written();
}

std::size_t IffBuilder::addMap() {
    const std::size_t offset = append({.type = "rsmp", .content = mapContent()});
    const Bytes field = ByteWriter().u32Be(static_cast<std::int64_t>(offset)).written();
    std::ranges::copy(field, file_.begin() + mapOffsetField);
    return offset;
}
