#include "sample/iff_builder.h"

#include <gtest/gtest.h>

#include "sample/text_chunk.h"
#include "tests/support/iff_walk.h"

namespace {

std::string asText(const Bytes& bytes) {
    return {bytes.begin(), bytes.end()};
}

// Two chunks of text around free room, as the game would save them.
IffBuilder smallFile() {
    IffBuilder file;
    file.add({.type = "CTSS", .id = 2000, .label = "", .content = textChunkContent({"Ada"})});
    file.addFreeRoom(80);
    file.add({.type = "STR#", .id = 200, .label = "ab", .content = {1, 2}});
    file.addMap();
    return file;
}

TEST(IffBuilderTest, WritesHeaderChunksAndMap) {
    const std::string file = asText(smallFile().bytes());
    const std::string label(64, '\0');
    const std::string mapContent(
        "\0\0\0\0\0\0\0\0pmsr\x26\0\0\0\2\0\0\0"
        "#RTS\1\0\0\0\xE6\0\0\0\xC8\0\x10\0ab\0\0"  // 64 + 86 + 80; the body strings' entry comes first
        "SSTC\1\0\0\0\x40\0\0\0\xD0\7\x10\0\0\0",
        58);
    const std::string name =
        std::string("CTSS\0\0\0\x56\x07\xD0\0\x10", 12) + label + std::string("\xFD\xFF\1\0\1Ada\0\0", 10);
    EXPECT_EQ(file.substr(0, 60), std::string("IFF FILE 2.5:TYPE FOLLOWED BY SIZE\0 JAMIE DOORNBOS & MAXIS 1", 60));
    EXPECT_EQ(file.substr(60, 4), std::string("\0\0\x01\x34", 4));  // 230 + 78, high byte first
    EXPECT_EQ(file.substr(64, 86), name);
    EXPECT_EQ(file.substr(150, 8), std::string("XXXX\0\0\0\x50", 8));
    EXPECT_EQ(file.substr(230, 12), std::string("STR#\0\0\0\x4E\0\xC8\0\x10", 12));
    EXPECT_EQ(file.substr(308 + 76), mapContent);
    EXPECT_EQ(walkIff(smallFile().bytes()).fault, "");
}

TEST(IffBuilderTest, TheWalkFindsWhatIsWrong) {
    const struct {
        const char* what;
        std::size_t offset;
        std::uint8_t byte;
        const char* fault;
    } rows[] = {
        {"a letter of the header", 0, 'i', "not the game's header"},
        {"a chunk beyond the end", 69, 1, "no chunk fits at 64"},
        {"a chunk smaller than its header", 71, 75, "no chunk fits at 64"},
        {"a map offset into a chunk", 63, 0x40, "no map where the header says"},
        {"an id that the map doesn't have", 239, 0xC9, "the map doesn't list STR# 201 once"},
        {"a type more in the map", 308 + 76 + 16, 3, "the map's entries don't fill it"},
        {"a type less in the map", 308 + 76 + 16, 1, "the map's entries don't fill it"},
        {"an entry with another offset", 308 + 76 + 28, 0xE5, "the map doesn't list STR# 200 once"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        Bytes file = smallFile().bytes();
        file[row.offset] = row.byte;
        EXPECT_EQ(walkIff(file).fault, row.fault);
    }
    Bytes cut = smallFile().bytes();
    cut.pop_back();
    EXPECT_EQ(walkIff(cut).fault, "no chunk fits at 308");
}

}  // namespace
