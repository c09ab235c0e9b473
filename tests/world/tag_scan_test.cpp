// The views of the game's files, and the scan for a tag.
#include "world/tag_scan.h"

#include "tests/support/test_stream.h"

namespace {

using namespace std::string_literals;

TEST(TagScan, ATagIsFoundFromTheCursorOn) {
    const struct {
        const char* what;
        std::string bytes, tag;
        int start, size, result, cursor;
    } rows[] = {
        {"ends with the file", "..XXXX", "XXXX", 0, 6, 3, 0},
        {"at the cursor, over the one in front", "XXXXX", "XXXX", 1, 5, 2, 1},
        {"zero bytes count", "\1\0\0\0.\1\0\0\0\4\0\0\0"s, "\1\0\0\0\4\0\0\0"s, 0, 13, 6, 0},
        {"over the edge of a page", std::string(126, '.') + "XXXX..", "XXXX", 0, 132, 127, 0},
        {"begins behind the noted size", "....XXXX", "XXXX", 0, 4, -4, 4},
        {"differs behind the noted size", "....XX..", "XXXX", 0, 4, -4, 6},
        {"file shorter than noted", "....", "XXXX", 0, 9, -4, 9},
    };
    for (const auto& row : rows) {
        TestStream file(bytesFrom(row.bytes));
        StreamView stream = file.view();
        stream.seek(row.start);
        EXPECT_EQ(findTag(stream, row.tag, row.size), row.result) << row.what;
        EXPECT_EQ(stream.tell(), row.cursor) << row.what;
    }
}

TEST(Stream, TheCursorIsEverybodysAndTheFlagsAreTheViews) {
    TestStream file(bytesFrom("abcd"));
    StreamView caller = file.view(), callee = caller, refused = caller;
    callee.skip(5);
    EXPECT_TRUE(callee.endOfFile() && !callee.failed()) << "it moved";
    EXPECT_TRUE(caller.peek() == -1 && caller.good()) << "nor does peeking raise a flag";
    caller.readBytes<1>();
    EXPECT_TRUE(caller.endOfFile() && caller.failed());
    callee.seek(1);
    callee.skip(1);
    EXPECT_EQ(callee.peek(), -1);
    refused.seek(-1);
    EXPECT_TRUE(refused.failed() && !refused.endOfFile());
    EXPECT_EQ(refused.tell(), 1) << "with the flags up nothing but a seek moves the cursor";
}

}  // namespace
