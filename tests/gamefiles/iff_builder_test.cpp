#include "gamefiles/iff_builder.h"

#include <gtest/gtest.h>

#include "gamefiles/text_chunk.h"
#include "tests/support/iff_walk.h"

namespace {

using namespace std::string_literals;

TEST(IffBuilderTest, WritesHeaderChunksAndMapAndTheWalkFindsWhatIsWrong) {
    IffBuilder builder;
    builder.add({.type = "CTSS", .id = 2000, .label = "", .content = textChunkContent({"Ada"})});
    builder.addFreeRoom(80);
    builder.add({.type = "STR#", .id = 200, .label = "ab", .content = {1, 2}});
    builder.addMap();
    const std::string file = textAt(builder.bytes());
    const std::string mapContent =
        "\0\0\0\0\0\0\0\0pmsr\x26\0\0\0\2\0\0\0"
        "#RTS\1\0\0\0\xE6\0\0\0\xC8\0\x10\0ab\0\0"  // 64 + 86 + 80; the body strings' entry comes first
        "SSTC\1\0\0\0\x40\0\0\0\xD0\7\x10\0\0\0"s;
    EXPECT_EQ(file.substr(0, 60), "IFF FILE 2.5:TYPE FOLLOWED BY SIZE\0 JAMIE DOORNBOS & MAXIS 1"s);
    EXPECT_EQ(file.substr(60, 4), "\0\0\x01\x34"s);  // 230 + 78, high byte first
    EXPECT_EQ(file.substr(64, 86), "CTSS\0\0\0\x56\x07\xD0\0\x10"s + std::string(64, '\0') + "\xFD\xFF\1\0\1Ada\0\0"s);
    EXPECT_EQ(file.substr(150, 8), "XXXX\0\0\0\x50"s);
    EXPECT_EQ(file.substr(230, 12), "STR#\0\0\0\x4E\0\xC8\0\x10"s);
    EXPECT_EQ(file.substr(308 + 76), mapContent);

    const std::pair<std::size_t, const char*> faults[] = {{0, "not the game's header"},
                                                          {71, "no chunk fits at 151"},
                                                          {63, "no map where the header says"},
                                                          {239, "the map doesn't list STR# 201"},
                                                          {308 + 76 + 28, "the map doesn't list STR# 200"}};
    for (const auto& [offset, fault] : faults) {
        Bytes broken = builder.bytes();
        broken[offset] ^= 1;
        EXPECT_EQ(walkIff(broken).fault, fault);
    }
}

}  // namespace
