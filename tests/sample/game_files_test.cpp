// The builders' whole files: the places of their fields, and that the game's way of walking them finds nothing wrong.
#include <gtest/gtest.h>

#include <algorithm>

#include "sample/character_file.h"
#include "sample/neighborhood_file.h"
#include "tests/support/iff_walk.h"

namespace {

std::string asText(const Bytes& bytes) {
    return {bytes.begin(), bytes.end()};
}

std::string repeated(const std::string& text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i) {
        all += text;
    }
    return all;
}

TEST(BodyStringTextTest, EndsAsItsVersionAsks) {
    using std::string_literals::operator""s;
    const std::string pair = "\1=\0\0"s;
    const std::string single = "\1\0\0"s;
    // Entries 1 to 29 of a Sim that wears nothing, with the two zero bytes that close the word before them.
    const std::string common = "\0\0"s + repeated(pair, 2) + repeated(single, 12) + repeated(pair, 8) +
                               repeated(single, 4) + repeated(pair, 3);
    BodySlots dressed;
    dressed[sampleSlot::w100Mesh] = "ab";
    dressed[sampleSlot::w100Skin] = "cd";
    BodySlots halfDressed = dressed;
    halfDressed[sampleSlot::w100Mesh] = "a";
    const struct {
        const char* what;
        BodySlots slots;
        int version;
        std::string text;
    } rows[] = {
        {"base game", {}, 6, common},
        {"nothing for the winter", {}, 7, common + repeated(pair, 3) + "\1"},
        {"too little for the winter", halfDressed, 7, common + repeated(pair, 3) + "\1"},
        {"winter in a base game", dressed, 6, common},
        {"winter", dressed, 8, common + repeated(pair, 3) + "\1ab=cd\0\0"s + repeated("\0\0\xA3\0"s, 7) + "\0\0"s},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(asText(sampleBodyText(row.slots, sampleBodyEnding(row.slots, row.version))), row.text);
    }
    EXPECT_EQ(asText(filledSampleBodyText({}, BodyEnding::atEntry29, 104)), common + "\xA3\xA3");
}

TEST(CharacterFileTest, EveryFormIsValidAndHoldsItsFields) {
    const struct {
        const char* what = "";
        SampleCharacter character = {};
    } rows[] = {
        {"as it comes", {}},
        {"without map", {.map = false}},
        {"with free room", {.name = "Zo\xEB", .freeRoom = true}},
        {"small, a child", {.name = "", .tag = "child", .hasPictures = false}},
        {"large", {.fileSize = 370000}},
    };
    for (const auto& [what, character] : rows) {
        SCOPED_TRACE(what);
        const CharacterFile file = makeCharacterFile(character);
        const IffWalk walk = walkIff(file.bytes);
        EXPECT_EQ(walk.fault, "");
        EXPECT_GE(file.bytes.size(), character.fileSize);
        EXPECT_EQ(walk.mapEntries.empty(), !character.map);
        EXPECT_EQ(walk.find("XXXX", 4101).offset, file.freeRoomOffset);
        EXPECT_EQ(walk.find("OBJD", 128).offset, file.objectOffset);
        EXPECT_EQ(textAt(file.bytes, file.objectOffset + 104, 4), "\x01\x11WT");
        EXPECT_EQ(walkTexts(file.bytes, walk.find("CTSS", 2000)).front(), character.name);
        const WalkedChunk body = walk.find("STR#", 200);
        EXPECT_EQ(body.offset, file.bodyStringsOffset);
        EXPECT_EQ(body.label, "bodystring");
        EXPECT_EQ(textAt(file.bytes, body.offset + 81, 5), character.tag);
        const std::vector<std::string> strings = walkTexts(file.bytes, body);
        ASSERT_EQ(strings.size(), 33U);
        EXPECT_EQ(strings[1], "b002fafit_01,BODY=b002fafitlgt_mom01");
        EXPECT_EQ(strings[32], "l100fafit_original,BODY=l100fafitlgt_original");
    }
}

TEST(NeighborhoodFileTest, ARecordHoldsEachFieldAtItsPlace) {
    SampleNeighbor neighbor = {.recordName = "user00042", .version = 9, .age = 18, .skinTone = 3, .wordA = 0x0A0B};
    neighbor.wordB = 0x0C0D;
    neighbor.kind = 5;
    neighbor.tailWords = {1, 2, 3, 4};
    neighbor.gapByte = 0xEE;
    neighbor.neighborId = 0x0102;
    neighbor.relationships = {{7, {-1}}};
    for (std::size_t i = 0; i < 29; ++i) {
        neighbor.personValues[i] = static_cast<std::int32_t>(0x100 + i);
    }
    std::string expected("\1\0\0\0\4\0\0\0user00042\0\0\0\0\0\x09\0\0\0\xEE\xEE\xEE\xEE", 30);
    for (char i = 0; i < 17; ++i) {
        expected += {i, 1};
    }
    expected += std::string(54, '\xEE');
    for (char i = 17; i < 29; ++i) {
        expected += {i, 1};
    }
    expected += std::string("\x12\0\xEE\xEE\3\0\x0B\x0A\xEE\xEE\x0D\x0C\xEE\xEE\5\0\xEE\xEE\1\0\2\0\3\0\4\0", 26);
    expected += std::string(18, '\xEE');
    expected += std::string("\2\1\x01\x11WT\xFF\xFF\xFF\xFF\1\0\0\0\1\0\0\0\7\0\0\0\1\0\0\0\xFF\xFF\xFF\xFF", 30);
    EXPECT_EQ(asText(sampleNeighborRecord(neighbor)), expected);
}

TEST(NeighborhoodFileTest, TellsWhereEachRecordLanded) {
    const SampleNeighborhood neighborhood = {
        .neighbors = {{.recordName = "robot", .hasPersonData = false}, {.recordName = "user00001"}},
        .families = {{.number = 1, .name = "Oats", .funds = 70000, .members = {0x41414141, 0x42424242}},
                     {.number = 2, .name = "Q&A", .hasHistory = true}},
        .freeRoom = true,
        .map = true,
        .fileSize = 5000,
    };
    const NeighborhoodFile file = makeNeighborhoodFile(neighborhood);
    const IffWalk walk = walkIff(file.bytes);
    EXPECT_EQ(walk.fault, "");
    EXPECT_EQ(file.bytes.size(), 5000U);
    EXPECT_EQ(textAt(file.bytes, file.neighborOffsets[0], 14), std::string("\1\0\0\0\4\0\0\0robot\0", 14));
    EXPECT_EQ(textAt(file.bytes, file.neighborOffsets[1], 17), std::string("\1\0\0\0\4\0\0\0user00001", 17));
    EXPECT_EQ(walk.find("FAMI", 1).offset, file.families[0].familyChunk);
    EXPECT_EQ(textAt(file.bytes, file.families[0].record, 16), std::string("IMAF\1\0\0\0\1\0\0\0\x70\x11\1\0", 16));
    EXPECT_EQ(textAt(file.bytes, file.families[0].memberTable - 4, 16), std::string("\2\0\0\0AAAABBBB\0\0\0\0", 16));
    EXPECT_EQ(file.families[0].memberTableEnd, file.families[0].memberTable + 8);
    EXPECT_EQ(textAt(file.bytes, file.families[0].name, 10), std::string("Oats\0\0FAMI", 10));
    EXPECT_EQ(textAt(file.bytes, file.families[1].name, 10), std::string("Q&A\0\0\xA3XXXX", 10));
    EXPECT_EQ(walk.find("FAMs", 2).offset, file.families[1].nameChunk);
    EXPECT_EQ(walk.find("XXXX", 4101).offset, file.freeRoomOffset);
    EXPECT_EQ(walk.find("rsmp", 0).offset, file.mapOffset);
}

}  // namespace
