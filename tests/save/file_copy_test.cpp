#include "save/file_copy.h"

#include <gtest/gtest.h>

#include "platform/win32.h"
#include "tests/support/failing_disk.h"
#include "tests/support/temp_directory.h"

namespace {

// No two blocks of a copy's buffer are alike.
Bytes numbered(std::size_t size) {
    Bytes bytes(size);
    for (std::size_t i = 0; i < size; ++i) {
        bytes[i] = static_cast<std::uint8_t>(i % 251 + i / 16'000);
    }
    return bytes;
}

class FileCopyTest : public testing::Test {
 protected:
    static constexpr auto overwrite = CopyMode::overwrite, append = CopyMode::append;

    std::int32_t copy(const char* source, const char* destination, std::int32_t limit, CopyMode mode) const {
        return copyFileBytes(files_.path(source).c_str(), files_.path(destination).c_str(), limit, mode);
    }

    std::int32_t move(const char* source, const char* destination) const {
        return moveByCopy(files_.path(source).c_str(), files_.path(destination).c_str());
    }

    TempDirectory files_;
};

TEST_F(FileCopyTest, CopiesUpToTheLimit) {
    const struct {
        std::size_t size;
        std::int32_t limit;
        CopyMode mode;
        std::size_t copied;
    } rows[] = {{0, 0, overwrite, 0},
                {32'000, 0, overwrite, 32'000},
                {32'001, 0, overwrite, 32'001},
                {40'000, 1, overwrite, 1},
                {40'000, 16'000, overwrite, 16'000},
                {40'000, 16'001, overwrite, 16'001},
                {232, 50'000, overwrite, 232},
                {32'000, 32'000, overwrite, 32'000},
                {232, 0, append, 232},
                {40'000, 20'000, append, 20'000}};
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.limit << " of " << row.size);
        files_.write("source", numbered(row.size));
        files_.write("destination", "what was there");
        EXPECT_EQ(copy("source", "destination", row.limit, row.mode), copyError::none);
        EXPECT_EQ(files_.bytesOf("source"), numbered(row.size));
        const std::string front = row.mode == append ? "what was there" : "";
        EXPECT_EQ(files_.bytesOf("destination"), ByteWriter().text(front).bytes(numbered(row.copied)).written());
    }
}

// If neither can be opened, the destination's error counts.
TEST_F(FileCopyTest, TellsWhichFileCouldNotBeOpened) {
    for (const char* name : {"source", "destination", "protected"}) {
        files_.write(name, name);
    }
    std::filesystem::permissions(files_.path("protected"), std::filesystem::perms::owner_read);
    files_.makeDirectory("directory");
    const struct {
        const char *source, *destination;
        DWORD error;
    } rows[] = {
        {"missing", "destination", ERROR_FILE_NOT_FOUND},  {"nowhere/missing", "destination", ERROR_PATH_NOT_FOUND},
        {"directory", "destination", ERROR_ACCESS_DENIED}, {"source", "directory", ERROR_ACCESS_DENIED},
        {"source", "nowhere/new", ERROR_PATH_NOT_FOUND},   {"source", "protected", ERROR_ACCESS_DENIED},
        {"missing", "nowhere/new", ERROR_PATH_NOT_FOUND},  {"nowhere/missing", "directory", ERROR_ACCESS_DENIED}};
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.source) + " to " + row.destination);
        const auto error = static_cast<std::int32_t>(row.error);
        EXPECT_EQ(copy(row.source, row.destination, 0, overwrite), error);
        EXPECT_EQ(copy(row.source, row.destination, 0, append), error);
        EXPECT_EQ(move(row.source, row.destination), error);
        for (const char* name : {"source", "destination", "protected"}) {
            EXPECT_EQ(files_.bytesOf(name), bytesFrom(name));
        }
    }
}

TEST_F(FileCopyTest, AMoveKeepsItsSourceUntilAllOfItIsCopied) {
    files_.write("source", numbered(40'000));
    for (const std::uint64_t room : {0, 1, 15'999, 16'000, 39'999}) {
        SCOPED_TRACE(room);
        const FullDisk disk(room);
        if (!disk.works()) GTEST_SKIP();
        EXPECT_EQ(copy("source", "destination", 0, overwrite), copyError::shortWrite);
        EXPECT_EQ(files_.bytesOf("destination").size(), room);
        EXPECT_EQ(copy("source", "destination", 0, append), copyError::shortWrite);
        EXPECT_EQ(move("source", "destination"), copyError::shortWrite);
        EXPECT_EQ(files_.bytesOf("source"), numbered(40'000));
        EXPECT_FALSE(files_.exists("destination"));
    }
    const FullDisk disk(40'000);
    EXPECT_EQ(move("source", "destination"), copyError::none);
    EXPECT_FALSE(files_.exists("source"));
    EXPECT_EQ(files_.bytesOf("destination"), numbered(40'000));
}

}  // namespace
