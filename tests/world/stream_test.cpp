// What the readers find in a file from its stream's cursor on: a tag, and the text of body strings.
#include "tests/support/test_neighborhood.h"
#include "world/tag_scan.h"

namespace {

using namespace std::string_literals;
using enum BodyEnding;

// No two alike, and those from `end` on empty.
BodySlots numberedSlots(std::size_t end = 50) {
    BodySlots slots;
    for (std::size_t i = 0; i < end; ++i)
        slots[i] = "s" + std::to_string(i);
    return slots;
}

struct TestStream {
    // With a window of 64 bytes, the smallest, it takes few bytes to cross its edge.
    explicit TestStream(const Bytes& bytes) {
        files.write("file", bytes);
        EXPECT_TRUE(file.open(files.path("file").c_str(), StreamFile::Access::read, 64));
    }
    TempDirectory files;
    StreamFile file;
    StreamView view{file};
};

TEST(TagScan, ATagIsFoundUpToTheNotedSize) {
    const std::tuple<const char*, std::string, int, int, int> rows[] = {
        {"over the edge of a page", std::string(126, '.') + "XXXX..", 132, 127, 0},
        {"begins behind the noted size", "....XXXX", 4, -4, 4},
        {"differs behind the noted size", "....XX..", 4, -4, 6},
        {"file shorter than noted", "....", 9, -4, 9},
    };
    for (const auto& [what, bytes, size, result, cursor] : rows) {
        TestStream file(bytesFrom(bytes));
        EXPECT_EQ(findTag(file.view, "XXXX", size), result) << what;
        EXPECT_EQ(file.view.tell(), cursor) << what;
    }
}

TEST(BodyStrings, AnEntryIsReadByteByByteAndSplitAtItsFirstEqualsSign) {
    const std::string x149(149, 'x');
    const std::pair<std::string, std::string> rows[] = {
        {"\1ab=c=d\0\0\1e"s, "read to 8: ab, c=d"},
        {"\1\0\0\1c\0"s, "read to 1: , "},
        {x149 + "\0c"s, "read to 150: " + x149 + ", "},
        {x149 + "y\1\0"s, "read to 151: " + x149 + ", "},  // 150 characters that no zero byte had to close
        {x149 + "=\0"s, "broken off at 151: 1, 2"},
        {"a=b\xA3\0"s, "broken off at 4: 1, 2"},
        {"a=b\1", "broken off at 4: 1, 2"},
    };
    for (const auto& [bytes, expected] : rows) {
        TestStream file(bytesFrom(bytes));
        StreamView stream = file.view;
        BodyStrings::Slot first("1"), second("2");
        const std::string result = readPair(first, second, stream) == 1 ? "read to " : "broken off at ";
        EXPECT_EQ(result + std::to_string(stream.tell()) + ": " + first.c_str() + ", " + second.c_str(), expected);
    }
}

TEST(BodyStrings, ATextIsReadAndWrittenBackByteByByte) {
    BodySlots shortSkin = numberedSlots();
    shortSkin[sampleSlot::w100Skin] = "x";
    const struct {
        const char* what;
        BodySlots slots;
        BodyEnding ending;
        std::int16_t simVersion, version;
        BodyEnding written;
    } rows[] = {
        {"base game", numberedSlots(42), atEntry29, 4, 4, atEntry29},
        {"base game's text under a later record", numberedSlots(42), atEntry29, 7, 6, atEntry32},
        {"expansion, under an old record", numberedSlots(48), atEntry32, 6, 7, atEntry29},
        {"later expansion", numberedSlots(), atEntry33, 8, 7, atEntry33},
        {"entry 33 with a skin of one letter", shortSkin, atEntry33, 7, 7, atEntry32},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        BodyStrings body;
        body.parse(TestStream(filledBodyStringText(row.slots, row.ending, 1041)).view, row.simVersion);
        EXPECT_EQ(slotsOf(body), row.slots);
        EXPECT_EQ(body.version(), row.version);
        Bytes buffer(3000);
        buffer.resize(body.serialise(buffer, 1041, row.simVersion));
        EXPECT_EQ(buffer, filledBodyStringText(row.slots, row.written, 1042));
    }
}

}  // namespace
