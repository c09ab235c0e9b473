// The reading of "neighborhood.iff": records, families, free room; and what damaged files give.
#include <gtest/gtest.h>

#include "tests/support/test_neighborhood.h"

namespace {

using namespace std::string_literals;
using Names = std::vector<std::string>;

int asInt(std::size_t offset) {
    return static_cast<int>(offset);
}

Names listedFamilies(const Neighborhood& neighborhood) {
    Names names;
    for (int i = 0; i < neighborhood.familyCount(); ++i)
        names.emplace_back(neighborhood.family(i)->name());
    return names;
}

TEST(NeighborhoodReader, APlayersRecordOfAKnownKindGivesASim) {
    const struct {
        std::string recordName;
        int kind, gender;
    } rows[] = {{"user0male", 0, 0},  {"npc_clown", 0, -1},  {"user1fema", 1, 1},
                {"user2dogs", 2, 2},  {"user6none", 6, -1},  {"user5cats", 5, 2},
                {"User00000", 0, -1}, {"user-1kin", -1, -1}, {"user0male", 0, 0}};
    SampleNeighborhood content;
    for (const auto& row : rows)
        content.neighbors.push_back({.recordName = row.recordName, .kind = row.kind, .gapByte = 0xEE});
    content.neighbors[1].hasPersonData = false;
    SampleNeighbor& last = content.neighbors.back();
    last.version = 0xF9;
    last.age = -2;
    last.skinTone = 3;
    for (std::size_t k = 0; k < 29; ++k)
        last.personValues[k] = 0x100 * asInt(k) - 3;
    const TestNeighborhood read(content);

    ASSERT_EQ(read->simCount(), 5);
    int listed = 0;
    for (const auto& row : rows) {
        if (row.gender == -1) continue;
        EXPECT_EQ(read.sim(listed).recordName(), row.recordName);
        EXPECT_EQ(read.sim(listed++).gender(), row.gender);
    }
    const Sim& sim = read.sim(4);
    EXPECT_EQ(sim.filePath(), read->directory() + "\\Characters\\user0male.iff"s);
    EXPECT_EQ(sim.recordOffset(), asInt(read.built().neighborOffsets.back()));
    EXPECT_EQ(sim.version(), -7);
    EXPECT_EQ(sim.age(), -2);
    EXPECT_EQ(sim.skinTone(), 3);
    for (std::size_t k = 0; k < 29; ++k)
        EXPECT_EQ(sim.personValue(k), 0x100 * asInt(k) - 3) << k;
    EXPECT_EQ(read->sim(5), nullptr);
    EXPECT_EQ(read->sim(-1), nullptr);
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
        SampleNeighborhood{.families = {{.number = 70000, .name = "Moth", .funds = -5, .members = {1, 2, 3}},
                                        {.number = 7, .name = "Crowd", .members = std::vector<std::uint32_t>(9)},
                                        {.number = 8, .name = "Wild", .memberCount = 0x7FFF},
                                        {.number = -4, .name = "Oats", .memberCount = -1, .hasHistory = true},
                                        {.number = 4465, .name = "Default"}}});
    EXPECT_EQ(listedFamilies(*read), (Names{"Moth", "Oats"}));
    EXPECT_EQ(read->highestFamilyNumber(), 4465) << "a family that isn't listed keeps its number";
    EXPECT_EQ(read.family(0).familyNumber(), 4464) << "the low 16 bits of 70000";
    EXPECT_EQ(read.family(0).funds(), -5);
    EXPECT_EQ(read.family(0).memberTableOffset(), asInt(read.built().families[0].memberTable));
    EXPECT_EQ(read.family(0).tableSize(), 12);
    EXPECT_EQ(read.family(0).memberCount(), 3);
    EXPECT_EQ(read.family(1).memberCount(), -1);
    EXPECT_EQ(read->family(2), nullptr);
    EXPECT_EQ(read->family(-1), nullptr);
}

TEST(NeighborhoodReader, AFamilysNameEndsAtAPairThatBeginsWithZero) {
    const struct {
        const char* what;
        std::string bytes;
        Names listed;
    } rows[] = {
        {"even", "Oats\0\0"s, {"Oats", "Last"}},
        {"odd", "Cr\xE8me\0\0\xA3"s, {"Cr\xE8me", "Last"}},
        {"odd, and the last pair takes the first letter of the last \"FAMI\"", "Moths\0\0"s, {"Moths"}},
        {"empty", "\0x"s, {"", "Last"}},
        {"a zero in second place is left out", "abc\0de\0\0"s, {"abcde", "Last"}},
        {"longer than its room", std::string(5000, 'n') + "\0\0"s, {std::string(99, 'n'), "Last"}},
        {"kept by the game", "Default\0\0\0"s, {"Last"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const IffChunk name{.type = "FAMs", .content = ByteWriter().text("\xFD\xFF\1\0\1"s + row.bytes).written()};
        const IffChunk lastName = sampleFamilyNameChunk({.name = "Last"});
        const TestNeighborhood read(
            SampleNeighborhood{.behind = {sampleFamilyChunk({}), name, sampleFamilyChunk({}), lastName}, .map = false});
        EXPECT_EQ(listedFamilies(*read), row.listed);
    }
}

TEST(NeighborhoodReader, WhatGoesBeyondTheTablesIsReadAndNotListed) {
    SampleNeighborhood content{.neighbors = std::vector<SampleNeighbor>(821),
                               .families = std::vector<SampleFamily>(101)};
    content.neighbors[819].recordName = "user00820";
    content.families[100].number = 101;
    const TestNeighborhood read(content);
    EXPECT_EQ(read->familyCount(), 100);
    EXPECT_EQ(read->highestFamilyNumber(), 101);
    ASSERT_EQ(read->simCount(), 820);
    EXPECT_STREQ(read.sim(819).recordName(), "user00820");
}

TEST(NeighborhoodReader, AFileCutAnywhereGivesWhatStandsWholeInFront) {
    SampleNeighborhood content{
        .neighbors = std::vector<SampleNeighbor>(4), .families = std::vector<SampleFamily>(3), .freeRoom = true};
    content.neighbors[1].recordName = "robot";
    content.neighbors[2].kind = 6;
    content.families[0].number = 3;
    content.families[2].number = 8;
    TestNeighborhood read(content);
    const NeighborhoodFile& built = read.built();
    for (std::size_t size = built.bytes.size(); size-- > 0 && !HasFailure();) {
        SCOPED_TRACE(size);
        std::filesystem::resize_file(read.files().path(TestNeighborhood::neighborhoodFile), size);
        read.load();
        const auto isWhole = [&](std::size_t i) { return built.neighborOffsets[i] + 186 <= size; };
        EXPECT_EQ(read->simCount(), (isWhole(0) ? 1 : 0) + (isWhole(3) ? 1 : 0));
        int families = 0, highestNumber = 0;
        for (std::size_t i = 0; i < 3; ++i) {
            if (built.families[i].name + sizeof "Meadows" + 2 <= size) ++families;
            if (built.families[i].record + 10 <= size) highestNumber = i < 2 ? 3 : 8;
        }
        EXPECT_EQ(read->familyCount(), families);
        EXPECT_EQ(read->highestFamilyNumber(), highestNumber);
        EXPECT_EQ(read->mapOffset(), size < 64 ? 0 : asInt(built.mapOffset));
        EXPECT_EQ(read->xxxxOffset(), size < built.freeRoomOffset + 4 ? -5 : asInt(built.freeRoomOffset));
    }
}

}  // namespace
