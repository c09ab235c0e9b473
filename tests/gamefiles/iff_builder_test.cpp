#include "gamefiles/iff_builder.h"

#include <gtest/gtest.h>

#include "gamefiles/iff_reader.h"
#include "gamefiles/text_chunk.h"
#include "tests/support/iff_walk.h"

namespace {

using namespace std::string_literals;

Bytes fileOfFourChunks() {
    IffBuilder builder;
    builder.add({.type = "STR#", .id = 300, .content = textChunkContent({})});
    builder.add({.type = "CTSS", .id = 2000, .content = textChunkContent({"Ada"}, 12)});
    builder.addFreeRoom(80);
    builder.add({.type = "STR#", .id = 200, .label = "ab", .content = {1, 2}});
    builder.addMap();
    return builder.bytes();
}

TEST(IffBuilderTest, WritesAHeaderThenChunksThenTheirMap) {
    const std::string noLabel(64, '\0');
    EXPECT_EQ(textAt(fileOfFourChunks()),
              "IFF FILE 2.5:TYPE FOLLOWED BY SIZE\0 JAMIE DOORNBOS & MAXIS 1\0\0\1\x86"s +
                  "STR#\0\0\0\x50\1\x2C\0\x10"s + noLabel + "\xFD\xFF\0\0"s +                          // at 64
                  "CTSS\0\0\0\x58\7\xD0\0\x10"s + noLabel + "\xFD\xFF\1\0\1Ada\0\0\xA3\xA3"s +         // at 144
                  "XXXX\0\0\0\x50\x10\5\0\x10old tree"s + std::string(60, '\0') +                      // at 232
                  "STR#\0\0\0\x4E\0\xC8\0\x10"s + "ab" + std::string(62, '\0') + "\1\2" +              // at 312
                  "rsmp\0\0\0\x90\0\0\0\x10"s + noLabel + "\0\0\0\0\0\0\0\0pmsr\x30\0\0\0\2\0\0\0"s +  // at 390
                  "#RTS\2\0\0\0\x38\1\0\0\xC8\0\x10\0ab\0\0\x40\0\0\0\x2C\1\x10\0\0\0"s +
                  "SSTC\1\0\0\0\x90\0\0\0\xD0\7\x10\0\0\0"s);
}

TEST(IffWalkTest, FindsWhatIsWrongWithAFile) {
    const struct {
        std::size_t changedByte;
        const char* fault;
    } rows[] = {{0, "not the game's header"},
                {71, "no chunk fits at 145"},
                {63, "no map where the header says"},
                {321, "the map doesn't list STR# 201"},
                {494, "the map doesn't list STR# 200"}};
    for (const auto& row : rows) {
        Bytes file = fileOfFourChunks();
        file[row.changedByte] ^= 1;
        EXPECT_EQ(walkIff(file).fault, row.fault);
    }
}

TEST(IffReaderTest, TakesApartWhatTheBuilderMadeAndSaysWhatItRefuses) {
    const IffChunk first{.type = "STR#", .id = 0x1234, .label = "ab", .content = {1, 2}, .flags = 0x5678};
    const IffChunk last{.type = "GLOB", .label = std::string(64, 'c'), .content = {}};
    IffBuilder builder;
    builder.add(first);
    builder.addFreeRoom(80);
    builder.add(last);
    const IffContents read = readIff(builder.bytes());
    ASSERT_EQ(read.chunks.size(), 3U) << read.fault;
    EXPECT_EQ(read.chunks[0], first);
    EXPECT_EQ(read.chunks[1].type, "XXXX");
    EXPECT_EQ(read.chunks[2], last);

    const struct {
        std::size_t changed, length;
        std::uint8_t byte;
        const char* fault;
    } rows[] = {{0, 298, 'i', "doesn't begin as the game's IFF files do"},
                {0, 63, 'I', "doesn't begin as the game's IFF files do"},
                {71, 298, 75, "has a chunk without room for its header at 64"},
                {68, 298, 0x80, "ends inside the chunk at 64"},
                {0, 297, 'I', "has bytes left over at 222"},
                {229, 298, 77, "ends inside the chunk at 222"},
                {0, 64, 'I', ""}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        Bytes file = builder.bytes();
        file[row.changed] = row.byte;
        file.resize(row.length);
        EXPECT_EQ(readIff(file).fault, row.fault);
        EXPECT_TRUE(readIff(file).chunks.empty());
    }
}

}  // namespace
