#include "platform/files.h"

#include <gtest/gtest.h>

#include <chrono>

#include "platform/win32.h"
#include "tests/support/temp_directory.h"

namespace fs = std::filesystem;

namespace {

// The working directory holds "User00042.iff", "protected.iff", which can't be written, and the directory "Sub".
class FilesTest : public testing::Test {
 protected:
    FilesTest() {
        fs::current_path(directory_.path());
        directory_.makeDirectory("Sub");
        directory_.write("User00042.iff", "old");
        directory_.write("protected.iff", "kept");
        fs::permissions("protected.iff", fs::perms::owner_read);
    }
    ~FilesTest() override { fs::permissions("protected.iff", fs::perms::owner_all); }

    TempDirectory directory_;
    FileStatus status_ = {};
};

TEST_F(FilesTest, AModeDecidesWhatAnOpenedFileHolds) {
    const struct {
        const char *mode, *content;  // once "XY" was written
    } rows[] = {{"r+b", "XYd"}, {"wb", "XY"}, {"ab", "oldXY"}, {"a+b", "oldXY"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.mode);
        directory_.write("User00042.iff", "old");
        std::FILE* file = openFile("sub\\..\\user00042.IFF", row.mode);
        ASSERT_NE(file, nullptr);
        EXPECT_EQ(std::fwrite("XY", 1, 2, file), 2U);
        EXPECT_EQ(directory_.bytesOf("User00042.iff"), bytesFrom(row.content)) << "held back in a buffer";
        EXPECT_TRUE(syncFile(file));
        EXPECT_EQ(std::fclose(file), 0);
    }
}

TEST_F(FilesTest, AFileThatCannotBeOpenedTellsWhy) {
    const struct {
        const char *file, *mode;
        DWORD error;
    } rows[] = {{"none.iff", "rb", ERROR_FILE_NOT_FOUND},
                {"none.iff", "r+b", ERROR_FILE_NOT_FOUND},
                {"none\\none.iff", "wb", ERROR_PATH_NOT_FOUND},
                {"sub", "rb", ERROR_ACCESS_DENIED},
                {"sub", "a+b", ERROR_ACCESS_DENIED}};
    for (const auto& row : rows) {
        EXPECT_EQ(openFile(row.file, row.mode), nullptr) << row.file;
        EXPECT_EQ(GetLastError(), row.error) << row.file << " " << row.mode;
    }
}

TEST_F(FilesTest, AStatusTellsKindSizeAndWhetherItMayBeWritten) {
    const struct {
        const char* path;
        std::uint32_t mode;
        std::int64_t size;
    } rows[] = {{"USER00042.IFF", writableFileMode, 3},
                {"protected.iff", readOnlyFileMode, 4},
                {".\\sub", writableDirectoryMode, 0}};
    for (const auto& row : rows) {
        ASSERT_TRUE(queryFileStatus(row.path, status_)) << row.path;
        EXPECT_EQ(status_.mode, row.mode) << row.path;
        EXPECT_EQ(status_.size, row.size) << row.path;
    }
    status_ = {1, 2};
    EXPECT_FALSE(queryFileStatus("Sub\\none.iff", status_));
    EXPECT_TRUE(status_.mode == 1 && status_.size == 2);
}

TEST_F(FilesTest, OnlyAWritableFileIsDeleted) {
    for (const char* kept : {"sub", "protected.iff"}) {
        EXPECT_FALSE(DeleteFileA(kept));
        EXPECT_EQ(GetLastError(), DWORD{ERROR_ACCESS_DENIED}) << kept;
    }
    EXPECT_TRUE(DeleteFileA("user00042.iff"));
    EXPECT_FALSE(DeleteFileA("user00042.iff"));
    EXPECT_EQ(GetLastError(), DWORD{ERROR_FILE_NOT_FOUND});
    EXPECT_TRUE(fs::exists("Sub") && fs::exists("protected.iff") && !fs::exists("User00042.iff"));
}

TEST_F(FilesTest, ADirectoryIsMadeOnceAndNotWithItsParents) {
    EXPECT_TRUE(CreateDirectoryA("Sub\\Backups", nullptr));
    EXPECT_TRUE(fs::is_directory("Sub/Backups"));
    EXPECT_FALSE(CreateDirectoryA("sub\\backups", nullptr));
    EXPECT_EQ(GetLastError(), DWORD{ERROR_ALREADY_EXISTS});
    EXPECT_FALSE(CreateDirectoryA("none\\Backups", nullptr));
    EXPECT_EQ(GetLastError(), DWORD{ERROR_PATH_NOT_FOUND});
}

TEST_F(FilesTest, ASearchFindsOneNameAsItIsSpelled) {
    WIN32_FIND_DATAA found = {};
    EXPECT_TRUE(FindClose(FindFirstFileA("SUB", &found)));
    EXPECT_NE(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY, 0U);
    EXPECT_TRUE(FindClose(FindFirstFileA("Sub\\..\\user00042.IFF", &found)));
    EXPECT_EQ(found.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY), 0U);
    EXPECT_STREQ(found.cFileName, "User00042.iff");
    EXPECT_EQ(found.nFileSizeLow, 3U);
    EXPECT_EQ(FindFirstFileA("none", &found), INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_FILE_NOT_FOUND});
    EXPECT_EQ(FindFirstFileA("none\\none", &found), INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_PATH_NOT_FOUND});
}

TEST_F(FilesTest, RelativePathsFollowTheWorkingDirectory) {
    directory_.write("Sub/Inner.iff", "1");
    EXPECT_FALSE(queryFileStatus("inner.iff", status_));
    EXPECT_TRUE(SetCurrentDirectoryA("sub"));
    EXPECT_TRUE(queryFileStatus("inner.iff", status_));
    EXPECT_FALSE(queryFileStatus("user00042.iff", status_));
    char path[MAX_PATH] = "untouched";
    const DWORD needed = GetCurrentDirectoryA(3, path);
    EXPECT_STREQ(path, "untouched");
    EXPECT_EQ(GetCurrentDirectoryA(needed - 1, path), needed);
    EXPECT_EQ(GetCurrentDirectoryA(needed, path), needed - 1);
    EXPECT_TRUE(fs::equivalent(path, directory_.path("Sub")));
    EXPECT_FALSE(SetCurrentDirectoryA("none"));
    EXPECT_TRUE(SetCurrentDirectoryA(".."));
    EXPECT_TRUE(queryFileStatus("user00042.iff", status_));
}

TEST(ClockTest, TheSystemTimeIsUtc) {
    const auto before = std::chrono::system_clock::now() - std::chrono::milliseconds(20);
    SYSTEMTIME t = {};
    GetSystemTime(&t);
    const auto day = std::chrono::sys_days(std::chrono::year(t.wYear) / t.wMonth / t.wDay);
    const auto time = day + std::chrono::hours(t.wHour) + std::chrono::minutes(t.wMinute) +
                      std::chrono::seconds(t.wSecond) + std::chrono::milliseconds(t.wMilliseconds);
    EXPECT_TRUE(before <= time && time <= std::chrono::system_clock::now());
    EXPECT_EQ(std::chrono::weekday(day).c_encoding(), t.wDayOfWeek);
}

}  // namespace
