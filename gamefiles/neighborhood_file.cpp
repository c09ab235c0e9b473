#include "gamefiles/neighborhood_file.h"

#include <algorithm>

#include "gamefiles/text_chunk.h"

namespace {

constexpr std::size_t freeRoomSize = 396;
constexpr int listVersion = 0x49;  // as the base game writes it

// 160 bytes; offsets count from the record's marker, 26 bytes before these.
Bytes personData(const SampleNeighbor& neighbor) {
    constexpr std::size_t recordOffset = 26;
    constexpr std::size_t size = 160;
    constexpr std::size_t valuesInFront = 17;
    ByteWriter data;
    const auto fillTo = [&](std::size_t offset) { data.fillTo(offset - recordOffset, neighbor.gapByte); };
    fillTo(30);
    for (std::size_t i = 0; i < neighbor.personValues.size(); ++i) {
        if (i == valuesInFront) fillTo(118);
        data.u16Le(neighbor.personValues[i]);
    }
    data.u16Le(neighbor.age);
    fillTo(146);
    data.u16Le(neighbor.skinTone).u16Le(neighbor.wordA);
    fillTo(152);
    data.u16Le(neighbor.wordB);
    fillTo(156);
    data.u16Le(neighbor.kind);
    fillTo(160);
    for (const std::int32_t word : neighbor.tailWords) {
        data.u16Le(word);
    }
    return data.fillTo(size, neighbor.gapByte).written();
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
    FamilyOffsets offsets;
    offsets.familyChunk = file.add(sampleFamilyChunk(family));
    offsets.record = offsets.familyChunk + iffChunkHeaderSize + 8;
    offsets.memberTable = offsets.record + 32;
    offsets.memberTableEnd = offsets.memberTable + 4 * family.members.size();
    if (family.hasHistory) {
        file.add({.type = "FAMh", .id = static_cast<std::uint16_t>(family.number), .content = Bytes(24)});
    }
    offsets.nameChunk = file.add(sampleFamilyNameChunk(family));
    offsets.name = offsets.nameChunk + iffChunkHeaderSize + firstTextOffset;
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

}  // namespace

Bytes sampleNeighborRecord(const SampleNeighbor& neighbor) {
    ByteWriter record;
    record.u32Le(1).u32Le(neighbor.recordVersion).field(neighbor.recordName.substr(0, 9), 10).u32Le(0);
    record.u32Le(neighbor.version);
    if (neighbor.hasPersonData) record.bytes(personData(neighbor));
    record.u16Le(neighbor.neighborId).u32Le(neighbor.guid).u32Le(-1);
    record.u32Le(static_cast<std::int64_t>(neighbor.relationships.size()));
    for (const SampleRelationship& relationship : neighbor.relationships) {
        record.u32Le(1).u32Le(relationship.neighborId);
        record.u32Le(static_cast<std::int64_t>(relationship.values.size()));
        for (const std::int32_t value : relationship.values) {
            record.u32Le(value);
        }
    }
    return record.written();
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
    // The name and its two zero bytes take whole pairs, with a pad byte behind a name of odd length. Without it a
    // reader that goes by pairs would take the first letter of the next chunk along, and miss that family.
    Bytes content = textChunkContent({family.name});
    if (family.name.size() % 2 != 0) content.push_back(textFill);
    return {.type = "FAMs", .id = static_cast<std::uint16_t>(family.number), .content = content};
}

NeighborhoodFile makeNeighborhoodFile(const SampleNeighborhood& neighborhood) {
    constexpr std::size_t emptyTexts = 4;
    NeighborhoodFile file = buildWith(neighborhood, emptyTexts);
    if (file.bytes.size() >= neighborhood.fileSize) return file;
    return buildWith(neighborhood, emptyTexts + neighborhood.fileSize - file.bytes.size());
}
