// The builders' whole files: the places of their fields, and that the game's way of walking them finds nothing wrong.
#include <gtest/gtest.h>

#include "sample/character_file.h"
#include "sample/neighborhood_file.h"
#include "tests/support/iff_walk.h"

namespace {

using namespace std::string_literals;

std::string repeated(const std::string& text, int times) {
    return times == 0 ? "" : text + repeated(text, times - 1);
}

TEST(BodyStringTextTest, EndsAsItsVersionAsks) {
    const std::string pair = "\1=\0\0"s, single = "\1\0\0"s;
    // Entries 1 to 29 of a Sim that wears nothing, with the two zero bytes that close the word before them.
    const std::string common = "\0\0"s + repeated(pair, 2) + repeated(single, 12) + repeated(pair, 8) +
                               repeated(single, 4) + repeated(pair, 3);
    const std::string expansion = common + repeated(pair, 3) + "\1";
    const struct {
        const char *what, *winterMesh, *winterSkin;
        int version;
        std::string text;
    } rows[] = {
        {"base game", "ab", "cd", 6, common},
        {"nothing for the winter", "", "", 7, expansion},
        {"too little for the winter", "a", "cd", 7, expansion},
        {"winter", "ab", "cd", 8, expansion + "ab=cd\0\0"s + repeated("\0\0\xA3\0"s, 7) + "\0\0"s},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        BodySlots slots;
        slots[sampleSlot::w100Mesh] = row.winterMesh;
        slots[sampleSlot::w100Skin] = row.winterSkin;
        EXPECT_EQ(textAt(sampleBodyText(slots, sampleBodyEnding(slots, row.version))), row.text);
    }
    EXPECT_EQ(textAt(filledSampleBodyText({}, BodyEnding::atEntry29, 104)), common + "\xA3\xA3");
}

TEST(CharacterFileTest, EveryFormIsValidAndHoldsItsFields) {
    const SampleCharacter forms[] = {{},
                                     {.map = false},
                                     {.name = "Zo\xEB", .freeRoom = true},
                                     {.name = "", .tag = "child", .hasPictures = false},
                                     {.fileSize = 370000}};
    for (const SampleCharacter& form : forms) {
        SCOPED_TRACE(&form - forms);
        const CharacterFile file = makeCharacterFile(form);
        const IffWalk walk = walkIff(file.bytes);
        EXPECT_EQ(walk.fault, "");
        EXPECT_GE(file.bytes.size(), form.fileSize);
        EXPECT_EQ(walk.find("rsmp", 0).offset, file.mapOffset);
        EXPECT_EQ(walk.find("XXXX", 4101).offset, file.freeRoomOffset);
        EXPECT_EQ(walk.find("OBJD", 128).offset, file.objectOffset);
        EXPECT_EQ(textAt(file.bytes, file.objectOffset + 104, 4), "\x01\x11WT");
        EXPECT_EQ(walk.find("CTSS", 2000).offset, file.nameOffset);
        EXPECT_EQ(textAt(file.bytes, file.nameOffset + 81, form.name.size() + 1), form.name + '\0');
        EXPECT_EQ(walk.find("STR#", 200).offset, file.bodyStringsOffset);
        EXPECT_EQ(textAt(file.bytes, file.bodyStringsOffset + 76, 10), "\xFD\xFF\x21\0\1"s + form.tag);
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
    std::string values;
    for (char i = 0; i < 29; ++i) {
        neighbor.personValues[static_cast<std::size_t>(i)] = 0x100 + i;
        values += {i, 1};
    }
    const std::string expected = "\1\0\0\0\4\0\0\0user00042\0\0\0\0\0\x09\0\0\0\xEE\xEE\xEE\xEE"s +
                                 values.substr(0, 34) + std::string(54, '\xEE') + values.substr(34) +
                                 "\x12\0\xEE\xEE\3\0\x0B\x0A\xEE\xEE\x0D\x0C\xEE\xEE\5\0\xEE\xEE\1\0\2\0\3\0\4\0"s +
                                 std::string(18, '\xEE') +
                                 "\2\1\x01\x11WT\xFF\xFF\xFF\xFF\1\0\0\0\1\0\0\0\7\0\0\0\1\0\0\0\xFF\xFF\xFF\xFF"s;
    EXPECT_EQ(textAt(sampleNeighborRecord(neighbor)), expected);
}

TEST(NeighborhoodFileTest, TellsWhereEachRecordLanded) {
    const NeighborhoodFile file = makeNeighborhoodFile(
        {.neighbors = {{.recordName = "robot", .hasPersonData = false}, {.recordName = "user00001"}},
         .families = {{.name = "Oats", .funds = 70000, .members = {0x41414141, 0x42424242}},
                      {.number = 2, .name = "Q&A", .hasHistory = true}},
         .freeRoom = true,
         .fileSize = 5000});
    EXPECT_EQ(walkIff(file.bytes).fault, "");
    EXPECT_EQ(file.bytes.size(), 5000U);
    const std::pair<std::size_t, std::string> pieces[] = {
        {file.neighborOffsets[0], "\1\0\0\0\4\0\0\0robot\0"s},
        {file.neighborOffsets[1], "\1\0\0\0\4\0\0\0user00001"s},
        {file.families[0].familyChunk, "FAMI"},
        {file.families[0].record, "IMAF\1\0\0\0\1\0\0\0\x70\x11\1\0"s},
        {file.families[0].memberTable - 4, "\2\0\0\0AAAABBBB\0\0\0\0"s},
        {file.families[0].memberTableEnd - 4, "BBBB"},
        {file.families[0].name, "Oats\0\0FAMI"s},
        {file.families[1].nameChunk, "FAMs"},
        {file.families[1].name, "Q&A\0\0\xA3XXXX"s},
        {file.freeRoomOffset, "XXXX"},
        {file.mapOffset, "rsmp"},
    };
    for (const auto& [offset, text] : pieces)
        EXPECT_EQ(textAt(file.bytes, offset, text.size()), text);
}

}  // namespace
