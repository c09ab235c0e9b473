// The reading of "neighborhood.iff": records, families, free room; and what damaged files give.
#include <gtest/gtest.h>

#include "tests/support/test_neighborhood.h"

namespace {

using namespace std::string_literals;
// The names of the listed families, with a "|" behind each.
std::string familiesOf(const TestNeighborhood& read) {
    std::string names;
    for (int i = 0; i < read->familyCount(); ++i)
        names += read.family(i).name() + "|"s;
    return names;
}

TEST(NeighborhoodReader, APlayersRecordOfAKnownKindGivesASim) {
    const std::pair<const char*, int> records[] = {{"user0male", 0}, {"npc_clown", 0},  {"user1fema", 1},
                                                   {"user2dogs", 2}, {"user6none", 6},  {"user5cats", 5},
                                                   {"User00000", 0}, {"user-1kin", -1}, {"user0male", 0}};
    SampleNeighborhood content;
    for (const auto& [recordName, kind] : records)
        content.neighbors.push_back({.recordName = recordName, .kind = kind, .gapByte = 0xEE});
    content.neighbors[1].hasPersonData = false;
    const TestNeighborhood read(content);
    std::string listed;
    for (int i = 0; i < read->simCount(); ++i)
        listed += read.sim(i).recordName() + " "s + std::to_string(read.sim(i).gender()) + "|";
    EXPECT_EQ(listed, "user0male 0|user1fema 1|user2dogs 2|user5cats 2|user0male 0|");
    EXPECT_FALSE(read->sim(5) || read->sim(-1));
}

TEST(NeighborhoodReader, TheSearchGoesOnThirteenBytesBehindAFalseMarker) {
    for (const std::size_t distance : {8U, 12U, 13U}) {
        ByteWriter content = ByteWriter().u32Le(1).u32Le(4).fillTo(distance, 'x').bytes(sampleNeighborRecord({}));
        const TestNeighborhood read(SampleNeighborhood{.before = {{.type = "NBRS", .content = content.written()}}});
        EXPECT_EQ(read->simCount(), distance < 13 ? 0 : 1) << distance;
    }
}

TEST(NeighborhoodReader, AFamilysRecordIsReadFieldByField) {
    const TestNeighborhood read(
        SampleNeighborhood{.families = {{.number = 70000, .name = "Moth", .members = {1, 2, 3}},
                                        {.number = 7, .name = "Crowd", .members = std::vector<std::uint32_t>(9)},
                                        {.number = 8, .name = "Wild", .memberCount = 0x7FFF},
                                        {.number = -4, .name = "Oats", .memberCount = -1, .hasHistory = true},
                                        {.number = 4465, .name = "Default"}}});
    EXPECT_EQ(familiesOf(read), "Moth|Oats|");
    EXPECT_EQ(read->highestFamilyNumber(), 4465) << "a family that isn't listed keeps its number";
    EXPECT_EQ(read.family(0).familyNumber(), 4464) << "the low 16 bits of 70000";
    EXPECT_EQ(read.family(0).memberCount(), 3);
    EXPECT_EQ(read.family(1).memberCount(), -1);
    EXPECT_FALSE(read->family(2) || read->family(-1));
}

TEST(NeighborhoodReader, AFamilysNameEndsAtAPairThatBeginsWithZero) {
    const struct {
        const char* what;
        std::string bytes, listed;
    } rows[] = {
        {"even", "Oats\0\0"s, "Oats|Last|"},
        {"odd", "Cr\xE8me\0\0\xA3"s, "Cr\xE8me|Last|"},
        {"odd, and the last pair takes the first letter of the last \"FAMI\"", "Moths\0\0"s, "Moths|"},
        {"empty", "\0x"s, "|Last|"},
        {"a zero in second place is left out", "abc\0de\0\0"s, "abcde|Last|"},
        {"longer than its room", std::string(5000, 'n') + "\0\0"s, std::string(99, 'n') + "|Last|"},
        {"kept by the game", "Default\0\0\0"s, "Last|"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const IffChunk family = sampleFamilyChunk({}), lastName = sampleFamilyNameChunk({.name = "Last"});
        const IffChunk name{.type = "FAMs", .content = bytesFrom("\xFD\xFF\1\0\1"s + row.bytes)};
        const TestNeighborhood read(SampleNeighborhood{.behind = {family, name, family, lastName}, .map = false});
        EXPECT_EQ(familiesOf(read), row.listed);
    }
}

TEST(NeighborhoodReader, WhatGoesBeyondTheTablesIsReadAndNotListed) {
    SampleNeighborhood content{.families = std::vector<SampleFamily>(101)};
    content.neighbors.resize(821);
    content.families[100].number = 101;
    const TestNeighborhood read(content);
    EXPECT_EQ(read->familyCount(), 100);
    EXPECT_EQ(read->highestFamilyNumber(), 101);
    EXPECT_EQ(read->simCount(), 820);
}

TEST(NeighborhoodReader, AFileCutAnywhereGivesWhatStandsWholeInFront) {
    TestNeighborhood read(SampleNeighborhood{.neighbors = {{}, {.recordName = "robot"}, {.kind = 6}, {}},
                                             .families = {{.number = 3}, {}, {.number = 8}},
                                             .freeRoom = true});
    const NeighborhoodFile& built = read.built();
    for (std::size_t size = built.bytes.size(); size-- > 0 && !HasFailure();) {
        SCOPED_TRACE(size);
        std::filesystem::resize_file(read.files().path(TestNeighborhood::neighborhoodFile), size);
        read.load();
        EXPECT_EQ(read->simCount(),
                  (size >= built.neighborOffsets[0] + 186) + (size >= built.neighborOffsets[3] + 186));
        int families = 0, highestNumber = 0;
        for (const FamilyOffsets& family : built.families) {
            if (family.name + sizeof "Meadows" + 2 <= size) ++families;
            if (family.record + 10 <= size) highestNumber = &family == &built.families[2] ? 8 : 3;
        }
        EXPECT_EQ(read->familyCount(), families);
        EXPECT_EQ(read->highestFamilyNumber(), highestNumber);
        EXPECT_TRUE(std::cmp_equal(read->mapOffset(), size < 64 ? 0 : built.mapOffset));
        EXPECT_EQ(read->xxxxOffset(), size < built.freeRoomOffset + 4 ? -5 : static_cast<int>(built.freeRoomOffset));
    }
}

}  // namespace
