// The text of body strings: its entries, and its reading and writing as a whole.
#include "world/body_strings.h"

#include <algorithm>

#include "sample/bodies.h"
#include "tests/support/test_stream.h"

namespace {

using namespace std::string_literals;
using enum BodyEnding;

constexpr std::size_t textSize = 1041;

BodyStrings parsed(const Bytes& text, std::int16_t simVersion) {
    BodyStrings body;
    body.parse(TestStream(text).view(), simVersion);
    return body;
}

BodySlots slotsOf(const BodyStrings& body) {
    BodySlots slots;
    for (std::size_t i = 0; i < slots.size(); ++i)
        slots[i] = body.slot(static_cast<bodySlot::Index>(i));
    return slots;
}

// No two alike, and those from `end` on empty.
BodySlots numberedSlots(std::size_t end = 50) {
    BodySlots slots;
    for (std::size_t i = 0; i < end; ++i)
        slots[i] = "s" + std::to_string(i);
    return slots;
}

TEST(BodyStrings, AnEntryIsReadByteByByteAndSplitAtItsFirstEqualsSign) {
    const std::string x149(149, 'x');
    constexpr int read = 1, endMark = -1, tooLong = -2;
    const struct {
        std::string bytes;
        int status, cursor;
        std::string first, second;
    } rows[] = {
        {"\1ab=c=d\0\0\1e"s, read, 8, "ab", "c=d"},
        {"\0\0\1=b\0"s, read, 6, "", "b"},
        {"\1\0\0\1c\0"s, read, 1, "", ""},
        {"a\1b\0"s, read, 4, "ab", ""},
        {"a\1\0b"s, read, 2, "a", ""},
        {x149 + "\0c"s, read, 150, x149, ""},
        {x149 + "y\1\0"s, read, 151, x149, ""},  // 150 characters that no zero byte had to close
        {x149 + "=\0"s, tooLong, 151, "1", "2"},
        {"\0\1\xA3\xA3"s, endMark, 3, "1", "2"},
        {"a=b\xA3\0"s, endMark, 4, "1", "2"},
        {"a=b", endMark, 3, "1", "2"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.bytes));
        TestStream file(bytesFrom(row.bytes));
        StreamView stream = file.view();
        BodyStrings::Slot first("1"), second("2");
        EXPECT_EQ(readPair(first, second, stream), row.status);
        EXPECT_EQ(stream.tell(), row.cursor);
        EXPECT_EQ(first, row.first);
        EXPECT_EQ(second, row.second);
    }
}

TEST(BodyStrings, ATextIsReadAndWrittenBackByteByByte) {
    BodySlots longest;
    longest.fill(std::string(74, 'x'));
    const struct {
        const char* what;
        BodySlots slots;
        BodyEnding ending;
        std::int16_t simVersion, version;
        BodyEnding written;
    } rows[] = {
        {"base game", numberedSlots(42), atEntry29, 4, 4, atEntry29},
        {"base game's text under a later record", numberedSlots(42), atEntry29, 7, 6, atEntry32},
        {"the same under a still later one", numberedSlots(42), atEntry29, 8, 8, atEntry32},
        {"expansion", numberedSlots(48), atEntry32, 7, 7, atEntry32},
        {"later expansion", adultSlots(), atEntry33, 8, 7, atEntry33},
        {"later expansion under an old record", numberedSlots(), atEntry33, 6, 7, atEntry29},
        {"entry 33 with an empty skin", numberedSlots(49), atEntry33, 7, 7, atEntry32},
        {"all empty", {}, atEntry29, 6, 6, atEntry29},
        {"more than the buffer takes", longest, atEntry33, 7, 7, atEntry33},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const BodyStrings body = parsed(filledSampleBodyText(row.slots, row.ending, textSize), row.simVersion);
        EXPECT_EQ(slotsOf(body), row.slots);
        EXPECT_EQ(body.version(), row.version);
        Bytes buffer(3001, 0x55), expected = filledSampleBodyText(row.slots, row.written, textSize + 1);
        expected.resize(std::min<std::size_t>(expected.size(), 3000));
        EXPECT_EQ(body.serialise(std::span(buffer).first(3000), textSize, row.simVersion), expected.size());
        expected.resize(3001, 0x55);
        EXPECT_EQ(buffer, expected);
    }
}

TEST(BodyStrings, ATextThatBreaksOffFillsTheSlotsItReaches) {
    const BodyStrings body = parsed(bytesFrom("\0\0\1a=b\0\0\1c=d\0\0\1e\0\0\1f\xA3\xA3"s), 7);
    EXPECT_EQ(slotsOf(body), (BodySlots{"a", "b", "c", "d", "e", "f"}));
}

}  // namespace
