#include "save/file_copy.h"

#include <gtest/gtest.h>

#include <numeric>

#include "platform/win32.h"
#include "tests/support/machine.h"
#include "tests/support/temp_directory.h"

namespace {

// No block of a copy's buffer is like the next one.
Bytes numbered(std::size_t size) {
    Bytes bytes(size);
    std::iota(bytes.begin(), bytes.end(), std::uint8_t{0});
    return bytes;
}

TEST(FileCopyTest, CopiesUpToTheLimitOrTellsWhichFileCouldNotBeOpened) {
    const TempDirectory files;
    files.write("source", numbered(40'000));
    const struct {
        const char *source, *destination;
        std::int32_t limit, result;
        std::size_t copied;
    } rows[] = {{"source", "destination", 0, 0, 40'000},
                {"source", "destination", 16'000, 0, 16'000},
                {"source", "destination", 16'001, 0, 16'001},
                {"source", "destination", 50'000, 0, 40'000},
                {"missing", "destination", 0, ERROR_FILE_NOT_FOUND, 0},
                {"source", ".", 0, ERROR_ACCESS_DENIED, 0},
                // If neither can be opened, the destination's error counts.
                {"missing", "nowhere/new", 0, ERROR_PATH_NOT_FOUND, 0}};
    for (const auto& row : rows) {
        for (const CopyMode mode : {CopyMode::append, CopyMode::overwrite}) {
            SCOPED_TRACE(testing::Message() << row.limit << " of " << row.source << " to " << row.destination);
            files.write("destination", "what was there");
            const std::string source = files.path(row.source), destination = files.path(row.destination);
            EXPECT_EQ(copyFileBytes(source.c_str(), destination.c_str(), row.limit, mode), row.result);
            const bool replaced = mode == CopyMode::overwrite && row.copied > 0;
            EXPECT_EQ(files.bytesOf("destination"),
                      ByteWriter().text(replaced ? "" : "what was there").bytes(numbered(row.copied)).written());
        }
    }
}

TEST(FileCopyTest, AMoveKeepsItsSourceUntilAllOfItIsCopied) {
    const TempDirectory files;
    const std::string source = files.path("source"), destination = files.path("destination");
    files.write("source", numbered(40'000));
    for (const std::uint64_t room : {0, 16'000, 39'999}) {
        SCOPED_TRACE(room);
        const FullDisk disk(room);
        EXPECT_EQ(moveByCopy(source.c_str(), destination.c_str()), copyError::shortWrite);
        EXPECT_EQ(files.bytesOf("source"), numbered(40'000));
        EXPECT_FALSE(files.exists("destination"));
    }
    EXPECT_EQ(moveByCopy(source.c_str(), destination.c_str()), copyError::none);
    EXPECT_FALSE(files.exists("source"));
    EXPECT_EQ(files.bytesOf("destination"), numbered(40'000));
}

}  // namespace
