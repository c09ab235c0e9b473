#include "save/file_copy.h"

#include <gtest/gtest.h>

#include <numeric>

#include "platform/win32.h"
#include "tests/support/temp_directory.h"

namespace {

TEST(FileCopyTest, CopiesUpToTheLimitOrTellsWhichFileCouldNotBeOpened) {
    const TempDirectory files;
    Bytes bytes(40'000);
    std::iota(bytes.begin(), bytes.end(), std::uint8_t{0});  // no block of a copy's buffer is like the next one
    files.write("source", bytes);
    const struct {
        const char *source, *destination;
        std::int32_t limit, result, copied;
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
            const char* kept = mode == CopyMode::overwrite && row.copied > 0 ? "" : "what was there";
            const Bytes copied(bytes.begin(), bytes.begin() + row.copied);
            EXPECT_EQ(files.bytesOf("destination"), ByteWriter().text(kept).bytes(copied).written());
        }
    }
}

}  // namespace
