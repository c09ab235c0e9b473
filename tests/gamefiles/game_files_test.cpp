// What the builders write that the program never reads, against bytes that were worked out by hand. The tests of the
// readers and of a save find wrong bytes in the rest.
#include <gtest/gtest.h>

#include "gamefiles/bitmap.h"
#include "gamefiles/neighborhood_file.h"
#include "gamefiles/object_definition.h"
#include "tests/support/iff_walk.h"

namespace {

using namespace std::string_literals;

TEST(ObjectDefinitionTest, HasTheWordsOfAPlayersSim) {
    std::string expected(216, '\0');
    const std::pair<std::size_t, std::string> words[] = {
        {0, "\x8A\0\0\0\x30\0\0\0\1"s},               // version and stack size
        {10, "\0\x10\2\0\x81\0\x80\0\2"s},            // main tree, and the type of a person
        {26, "\x80\0\1\x11WT"s},                      // and the GUID
        {38, "\xC8\0\x80\0\0\0\0\0\xCA"s},            // body strings and slots
        {82, "\xD0\7\0\0\1\x10\0\0\0\0\0\0\2\x10"s},  // name, init tree and load tree
        {98, "\1\0\0\0\0\0\x12\x20"s},                // cleanup tree
        {136, "\1"}};
    for (const auto& [offset, bytes] : words)
        expected.replace(offset, bytes.size(), bytes);
    EXPECT_EQ(textAt(objectDefinition("Ada", sampleGuid).content), expected);
}

TEST(BitmapTest, HasPaddedRowsFromTheBottomUp) {
    EXPECT_EQ(textAt(portraitBitmap(2, 2, {.background = 0x010203, .skin = 0x040506})),
              "BM\x46\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\2\0\0\0\2\0\0\0\1\0\x18\0\0\0\0\0\x10\0\0\0"s
              "\x13\x0B\0\0\x13\x0B\0\0\0\0\0\0\0\0\0\0\3\2\1\6\5\4\0\0\3\2\1\3\2\1\0\0"s);
}

TEST(NeighborhoodFileTest, ARecordGoesOnBehindThePersonData) {
    const Bytes record = sampleNeighborRecord({.gapByte = 0xEE, .neighborId = 0x0102, .relationships = {{7, {-1}}}});
    EXPECT_EQ(textAt(record, 64, 54), std::string(54, '\xEE'));
    EXPECT_EQ(textAt(record, 186), "\2\1\x01\x11WT\xFF\xFF\xFF\xFF\1\0\0\0\1\0\0\0\7\0\0\0\1\0\0\0\xFF\xFF\xFF\xFF"s);
}

TEST(NeighborhoodFileTest, AFamilyHoldsEachFieldAtItsPlace) {
    const SampleFamily family{.number = 3, .name = "Q&A", .funds = 70000, .members = {0x41414141, 0x42424242}};
    EXPECT_EQ(textAt(sampleFamilyChunk(family).content),
              "\0\0\0\0\4\0\0\0IMAF\1\0\0\0\3\0\0\0\x70\x11\1\0\x98\x3A\0\0\2\0\0\0\x09\0\0\0\2\0\0\0AAAABBBB"s +
                  std::string(16, '\0'));
    EXPECT_EQ(textAt(sampleFamilyNameChunk(family).content), "\xFD\xFF\1\0\1Q&A\0\0\xA3"s);
}

}  // namespace
