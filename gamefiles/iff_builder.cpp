#include "gamefiles/iff_builder.h"

#include <algorithm>

namespace {

constexpr std::size_t mapOffsetField = 60;
constexpr std::uint16_t bodyStringsId = 200;

bool isBodyStrings(const IffChunk& chunk) {
    return chunk.type == "STR#" && chunk.id == bodyStringsId;
}

void writeMapEntry(ByteWriter& map, const IffChunk& header, std::size_t offset) {
    map.u32Le(static_cast<std::int64_t>(offset)).u16Le(header.id).u16Le(header.flags);
    const std::size_t labelSize = header.label.size() + 1;
    map.field(header.label, labelSize + labelSize % 2);
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
                            .field(chunk.type, 4)
                            .u32Be(static_cast<std::int64_t>(iffChunkHeaderSize + chunk.content.size()))
                            .u16Be(chunk.id)
                            .u16Be(chunk.flags)
                            .field(chunk.label, 64)
                            .bytes(chunk.content)
                            .written();
    file_.insert(file_.end(), bytes.begin(), bytes.end());
    return offset;
}

std::size_t IffBuilder::add(const IffChunk& chunk) {
    const std::size_t offset = append(chunk);
    entries_.push_back({{chunk.type, chunk.id, chunk.label, {}, chunk.flags}, offset});
    return offset;
}

std::size_t IffBuilder::addFreeRoom(std::size_t size) {
    return append({.type = "XXXX", .id = 4101, .label = "old tree", .content = Bytes(size - iffChunkHeaderSize)});
}

void IffBuilder::padTo(std::size_t offset) {
    if (offset > size()) addFreeRoom(offset - size());
}

std::vector<IffBuilder::MapType> IffBuilder::entriesByType() const {
    // The entry of the body strings comes first of all. Readers find it by its id and flags, the run 00 C8 00 10 with
    // the high byte of its offset, and an offset or a label further up could hold that run by accident.
    std::vector<MapEntry> entries = entries_;
    std::stable_partition(entries.begin(), entries.end(),
                          [](const MapEntry& entry) { return isBodyStrings(entry.header); });
    std::vector<MapType> types;
    for (const MapEntry& entry : entries) {
        auto type = std::find_if(types.begin(), types.end(),
                                 [&entry](const MapType& known) { return known.type == entry.header.type; });
        if (type == types.end()) type = types.insert(types.end(), {entry.header.type, {}});
        type->entries.push_back(entry);
    }
    return types;
}

std::size_t IffBuilder::addMap() {
    const std::vector<MapType> types = entriesByType();
    ByteWriter list;
    for (const MapType& type : types) {
        list.text(std::string(type.type.rbegin(), type.type.rend()))
            .u32Le(static_cast<std::int64_t>(type.entries.size()));
        for (const MapEntry& entry : type.entries) {
            writeMapEntry(list, entry.header, entry.offset);
        }
    }
    const Bytes content = ByteWriter()
                              .u32Le(0)
                              .u32Le(0)
                              .text("pmsr")
                              .u32Le(static_cast<std::int64_t>(list.size()))
                              .u32Le(static_cast<std::int64_t>(types.size()))
                              .bytes(list.written())
                              .written();
    const std::size_t offset = append({.type = "rsmp", .content = content});
    putU32Be(file_, mapOffsetField, static_cast<std::int64_t>(offset));
    return offset;
}
