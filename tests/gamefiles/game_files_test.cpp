// The places of the fields in the pieces of the builders' files, worked out by hand.
#include <gtest/gtest.h>

#include "gamefiles/neighborhood_file.h"
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
    const std::string winter = expansion + "ab=cd\0\0"s + repeated("\0\0\xA3\0"s, 7) + "\0\0"s;
    const auto textOf = [](const char* winterMesh, int version) {
        BodySlots slots;
        slots[sampleSlot::w100Mesh] = winterMesh;
        slots[sampleSlot::w100Skin] = "cd";
        return textAt(sampleBodyText(slots, sampleBodyEnding(slots, version)));
    };
    EXPECT_EQ(textOf("ab", 6), common);
    EXPECT_EQ(textOf("a", 7), expansion);
    EXPECT_EQ(textOf("ab", 8), winter);
    EXPECT_EQ(textAt(filledSampleBodyText({}, BodyEnding::atEntry29, 104)), common + "\xA3\xA3");
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

TEST(NeighborhoodFileTest, AFamilyHoldsEachFieldAtItsPlace) {
    const SampleFamily family{.number = 3, .name = "Q&A", .funds = 70000, .members = {0x41414141, 0x42424242}};
    const std::string expected =
        "\0\0\0\0\4\0\0\0IMAF\1\0\0\0\3\0\0\0\x70\x11\1\0\x98\x3A\0\0\2\0\0\0\x09\0\0\0\2\0\0\0AAAABBBB"s;
    EXPECT_EQ(textAt(sampleFamilyChunk(family).content), expected + std::string(16, '\0'));
    EXPECT_EQ(textAt(sampleFamilyNameChunk(family).content), "\xFD\xFF\1\0\1Q&A\0\0\xA3"s);
    EXPECT_EQ(textAt(sampleFamilyNameChunk({.name = "Oats"}).content), "\xFD\xFF\1\0\1Oats\0\0"s);
}

}  // namespace
