#include "sample/neighborhood_file.h"

#include <algorithm>

#include "gamefiles/text_chunk.h"

namespace {

constexpr std::size_t freeRoomSize = 396;

// Versions that the base game writes.
constexpr int listVersion = 0x49;
constexpr int recordVersion = 4;
constexpr int laterRecordVersion = 10;
constexpr int laterMarkerEnd = 9;
constexpr int recordBegin = 1;
constexpr int relationshipVersion = 1;

// Offsets in a neighbor record, from its marker.
constexpr std::size_t firstValuesField = 30;
constexpr std::size_t lastValuesField = 118;
constexpr std::size_t skinToneField = 146;
constexpr std::size_t wordBField = 152;
constexpr std::size_t kindField = 156;
constexpr std::size_t tailWordsField = 160;
constexpr std::size_t personDataEnd = 186;
constexpr std::size_t laterPersonDataEnd = 538;

constexpr std::size_t lastValues = 17;  // the first of them

// "IMAF" in the content of a "FAMI" chunk, and the member table from there.
constexpr std::size_t familyRecord = 8;
constexpr std::size_t memberTableField = 32;

void writePersonData(ByteWriter& record, const SampleNeighbor& neighbor) {
    const auto skipTo = [&](std::size_t field) { record.fillTo(field, neighbor.gapByte); };
    skipTo(firstValuesField);
    for (std::size_t i = 0; i < neighbor.personValues.size(); ++i) {
        if (i == lastValues) skipTo(lastValuesField);
        record.u16Le(neighbor.personValues[i]);
    }
    record.u16Le(neighbor.age);
    skipTo(skinToneField);
    record.u16Le(neighbor.skinTone).u16Le(neighbor.wordA);
    skipTo(wordBField);
    record.u16Le(neighbor.wordB);
    skipTo(kindField);
    record.u16Le(neighbor.kind);
    skipTo(tailWordsField);
    for (const std::int32_t word : neighbor.tailWords) {
        record.u16Le(word);
    }
    skipTo(neighbor.later ? laterPersonDataEnd : personDataEnd);
}

void writeRelationship(ByteWriter& record, const SampleRelationship& relationship) {
    record.u32Le(relationshipVersion).u32Le(relationship.neighborId);
    record.u32Le(static_cast<std::int64_t>(relationship.values.size()));
    for (const std::int32_t value : relationship.values) {
        record.u32Le(value);
    }
}

void addNeighbors(const SampleNeighborhood& neighborhood, IffBuilder& file, NeighborhoodFile& built) {
    ByteWriter content;
    content.u32Le(0).u32Le(listVersion).text("SRBN").u32Le(static_cast<std::int64_t>(neighborhood.neighbors.size()));
    const std::size_t contentOffset = file.size() + iffChunkHeaderSize;
    for (const SampleNeighbor& neighbor : neighborhood.neighbors) {
        built.neighborOffsets.push_back(contentOffset + content.size());
        content.bytes(sampleNeighborRecord(neighbor));
    }
    file.add({.type = "NBRS", .id = 1, .content = content.written()});
}

FamilyOffsets addFamily(const SampleFamily& family, IffBuilder& file) {
    constexpr std::size_t historySize = 24;
    FamilyOffsets offsets;
    offsets.record = file.add(sampleFamilyChunk(family)) + iffChunkHeaderSize + familyRecord;
    offsets.memberTable = offsets.record + memberTableField;
    offsets.memberTableEnd = offsets.memberTable + 4 * family.members.size();
    if (family.hasHistory) {
        file.add({.type = "FAMh", .id = static_cast<std::uint16_t>(family.number), .content = Bytes(historySize)});
    }
    offsets.name = file.add(sampleFamilyNameChunk(family)) + iffChunkHeaderSize + firstTextOffset;
    return offsets;
}

NeighborhoodFile buildWith(const SampleNeighborhood& neighborhood, std::size_t paddingSize) {
    NeighborhoodFile built;
    IffBuilder file;
    for (const IffChunk& chunk : neighborhood.before) {
        file.add(chunk);
    }
    if (neighborhood.fileSize > 0) {
        file.add({.type = "STR#", .id = 2, .label = "notes", .content = textChunkContent({}, paddingSize)});
    }
    addNeighbors(neighborhood, file, built);
    for (const SampleFamily& family : neighborhood.families) {
        built.families.push_back(addFamily(family, file));
    }
    if (neighborhood.freeRoom) built.freeRoomOffset = file.addFreeRoom(freeRoomSize);
    for (const IffChunk& chunk : neighborhood.behind) {
        file.add(chunk);
    }
    if (neighborhood.map) built.mapOffset = file.addMap();
    built.bytes = file.bytes();
    return built;
}

// Later editions have one more word in front, and give the name no more room than it and its zero byte need, rounded up
// to an even number.
Bytes laterRecord(Bytes record, const std::string& name) {
    constexpr std::ptrdiff_t nameField = 8;
    constexpr std::ptrdiff_t nameFieldEnd = 18;
    const auto needed = static_cast<std::ptrdiff_t>((name.size() + 2) / 2 * 2);
    record.erase(record.begin() + std::min(nameField + needed, nameFieldEnd), record.begin() + nameFieldEnd);
    return ByteWriter().u32Le(recordBegin).bytes(record).written();
}

}  // namespace

Bytes sampleNeighborRecord(const SampleNeighbor& neighbor) {
    constexpr std::size_t longestName = 9;
    ByteWriter record;
    if (neighbor.later) {
        record.u32Le(laterRecordVersion).u32Le(laterMarkerEnd);
    } else {
        record.u32Le(recordBegin).u32Le(recordVersion);
    }
    record.field(neighbor.recordName.substr(0, longestName), longestName + 1).u32Le(0);
    record.u32Le(neighbor.version);
    if (neighbor.hasPersonData) writePersonData(record, neighbor);
    record.u16Le(neighbor.neighborId).u32Le(neighbor.guid).u32Le(-1);
    record.u32Le(static_cast<std::int64_t>(neighbor.relationships.size()));
    for (const SampleRelationship& relationship : neighbor.relationships) {
        writeRelationship(record, relationship);
    }
    return neighbor.later ? laterRecord(record.written(), neighbor.recordName) : record.written();
}

IffChunk sampleFamilyChunk(const SampleFamily& family) {
    const auto listed = static_cast<std::int32_t>(family.members.size());
    ByteWriter content;
    content.u32Le(0).u32Le(family.version).text("IMAF").u32Le(family.house).u32Le(family.number);
    content.u32Le(family.funds).u32Le(family.houseValue).u32Le(family.friends).u32Le(family.flags);
    content.u32Le(family.memberCount.value_or(listed));
    for (const std::uint32_t guid : family.members) {
        content.u32Le(guid);
    }
    for (int i = 0; i < family.trailingNumbers; ++i) {
        content.u32Le(0);
    }
    return {.type = "FAMI", .id = static_cast<std::uint16_t>(family.number), .content = content.written()};
}

IffChunk sampleFamilyNameChunk(const SampleFamily& family) {
    // The name and its two zero bytes fill whole pairs: a name of odd length has a pad byte behind it. Without one, a
    // reader of pairs would go on into the first letter of the next chunk and miss that family.
    Bytes content = textChunkContent({family.name});
    if (family.name.size() % 2 != 0) content.push_back(textFill);
    return {.type = "FAMs", .id = static_cast<std::uint16_t>(family.number), .content = content};
}

NeighborhoodFile makeNeighborhoodFile(const SampleNeighborhood& neighborhood) {
    NeighborhoodFile file = buildWith(neighborhood, 0);
    if (file.bytes.size() >= neighborhood.fileSize) return file;
    const std::size_t emptyContent = textChunkContent({}).size();
    return buildWith(neighborhood, emptyContent + neighborhood.fileSize - file.bytes.size());
}
