#include "platform/files.h"

#include <gtest/gtest.h>

#include "platform/win32.h"
#include "tests/support/temp_directory.h"

namespace fs = std::filesystem;

namespace {

// The working directory holds "User00042.iff", the directory "Sub", and "protected.iff", which lets nobody write.
class FilesTest : public testing::Test {
 protected:
    FilesTest() {
        fs::current_path(directory_.path());
        directory_.makeDirectory("Sub");
        directory_.write("User00042.iff", "old");
        directory_.write("protected.iff", "kept");
        fs::permissions("protected.iff", fs::perms::owner_read);
    }

    static constexpr const char* none = "no such file";

    std::string contentOf(const std::string& name) const {
        if (!directory_.exists(name)) return none;
        const Bytes bytes = directory_.bytesOf(name);
        return {bytes.begin(), bytes.end()};
    }

    TempDirectory directory_;
    FileStatus status_ = {};
};

TEST_F(FilesTest, AModeDecidesWhatAnOpenedFileHolds) {
    const struct {
        const char *mode, *content;  // once "XY" was written
    } rows[] = {{"r+b", "XYd"}, {"wb", "XY"}, {"a+b", "oldXY"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.mode);
        directory_.write("User00042.iff", "old");
        std::FILE* file = openFile("sub\\..\\user00042.IFF", row.mode);
        ASSERT_NE(file, nullptr);
        EXPECT_EQ(std::fwrite("XY", 1, 2, file), 2U);
        EXPECT_EQ(directory_.bytesOf("User00042.iff"), bytesFrom(row.content)) << "held back in a buffer";
        EXPECT_EQ(std::fclose(file), 0);
    }
}

TEST_F(FilesTest, AFileThatCannotBeOpenedTellsWhy) {
    const struct {
        std::string file;
        const char* mode;
        DWORD error;
    } rows[] = {{"none.iff", "rb", ERROR_FILE_NOT_FOUND},
                {"none.iff", "r+b", ERROR_FILE_NOT_FOUND},
                {"none\\none.iff", "wb", ERROR_PATH_NOT_FOUND},
                {"sub", "rb", ERROR_ACCESS_DENIED}};
    for (const auto& row : rows) {
        EXPECT_EQ(openFile(row.file.c_str(), row.mode), nullptr) << row.file;
        EXPECT_EQ(GetLastError(), row.error) << row.file << " " << row.mode;
    }
    EXPECT_EQ(openFile(std::string(300, 'x').c_str(), "wb"), nullptr) << "no name is cut";
}

TEST_F(FilesTest, AProtectedFileIsNotOpenedForWriting) {
    for (const char* const mode : {"wb", "a+b"}) {
        EXPECT_EQ(openFile("protected.iff", mode), nullptr);
        EXPECT_EQ(GetLastError(), DWORD{ERROR_ACCESS_DENIED}) << mode;
    }
    EXPECT_EQ(NewVersion("protected.iff").open(NewVersion::Naming::whenComplete), nullptr);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_ACCESS_DENIED});
    EXPECT_EQ(directory_.bytesOf("protected.iff"), bytesFrom("kept"));
}

TEST_F(FilesTest, AStatusTellsKindSizeAndWhetherItMayBeWritten) {
    const struct {
        const char* path;
        std::uint32_t mode;
        std::int64_t size;
    } rows[] = {{"USER00042.IFF", writableFileMode, 3},
                {"PROTECTED.iff", readOnlyFileMode, 4},
                {".\\sub", writableDirectoryMode, 0}};
    for (const auto& row : rows) {
        ASSERT_TRUE(queryFileStatus(row.path, status_)) << row.path;
        EXPECT_EQ(status_.mode, row.mode) << row.path;
        EXPECT_EQ(status_.size, row.size) << row.path;
    }
    EXPECT_FALSE(queryFileStatus("Sub\\none.iff", status_));
}

TEST_F(FilesTest, ANewVersionTakesItsNameWhenItIsComplete) {
    using enum NewVersion::Naming;
    const struct {
        const char* what;
        NewVersion::Naming naming;
        bool isNamed;
        std::string before, after;  // what the name has until the version gets it, and from then on
    } rows[] = {{"named", whenComplete, true, "old", "new"},
                {"discarded", whenComplete, false, "old", "old"},
                {"named at once", atOnce, true, "new", "new"},
                {"discarded, named at once", atOnce, false, "new", none}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        directory_.write("User00042.iff", "old");
        fs::current_path(directory_.path());
        {
            NewVersion version("user00042.iff");
            directory_.write("Sub/user00042.iff", "another file");
            fs::current_path(directory_.path("Sub"));
            std::FILE* file = version.open(row.naming);
            ASSERT_NE(file, nullptr);
            EXPECT_EQ(std::fwrite("new", 1, 3, file), 3U);
            EXPECT_TRUE(version.complete());
            EXPECT_EQ(contentOf("User00042.iff"), row.before);
            EXPECT_TRUE(!row.isNamed || version.giveName());
        }
        EXPECT_EQ(contentOf("User00042.iff"), row.after);
        EXPECT_EQ(contentOf("Sub/user00042.iff"), "another file");
        EXPECT_EQ(std::distance(fs::directory_iterator(directory_.path()), {}), row.after == none ? 2 : 3);
    }
    fs::current_path(directory_.path());
    EXPECT_EQ(NewVersion("sub").open(whenComplete), nullptr);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_ACCESS_DENIED});
    EXPECT_EQ(NewVersion("none\\new.iff").open(whenComplete), nullptr);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_PATH_NOT_FOUND});
}

TEST_F(FilesTest, LinksLeadToTheSameFile) {
    fs::create_hard_link("User00042.iff", "hard.iff");
    directory_.write("alike.iff", "old");
    EXPECT_TRUE(isSameFile("user00042.iff", ".\\sub\\..\\User00042.iff"));
    EXPECT_TRUE(isSameFile("user00042.iff", "hard.iff"));
    EXPECT_FALSE(isSameFile("user00042.iff", "alike.iff"));
    EXPECT_FALSE(isSameFile("none.iff", "none.iff"));
}

TEST_F(FilesTest, OnlyAWritableFileIsDeleted) {
    for (const char* kept : {"sub", "protected.iff"}) {
        EXPECT_FALSE(DeleteFileA(kept));
        EXPECT_EQ(GetLastError(), DWORD{ERROR_ACCESS_DENIED}) << kept;
    }
    EXPECT_TRUE(DeleteFileA("user00042.iff"));
    EXPECT_FALSE(fs::exists("User00042.iff"));
    EXPECT_FALSE(DeleteFileA("user00042.iff"));
    EXPECT_EQ(GetLastError(), DWORD{ERROR_FILE_NOT_FOUND});
}

TEST_F(FilesTest, ADirectoryIsMadeOnceFoundAndEntered) {
    EXPECT_TRUE(CreateDirectoryA("sub\\Backups", nullptr));
    EXPECT_FALSE(CreateDirectoryA("Sub\\BACKUPS", nullptr));
    EXPECT_EQ(GetLastError(), DWORD{ERROR_ALREADY_EXISTS});
    EXPECT_FALSE(CreateDirectoryA("none\\Backups", nullptr));
    WIN32_FIND_DATAA found = {};
    EXPECT_TRUE(FindClose(FindFirstFileA("SUB\\backups", &found)));
    EXPECT_EQ(FindFirstFileA("none", &found), INVALID_HANDLE_VALUE);

    EXPECT_TRUE(SetCurrentDirectoryA("sub"));
    EXPECT_TRUE(queryFileStatus("backups", status_));
    EXPECT_FALSE(queryFileStatus("user00042.iff", status_));
    char path[MAX_PATH] = "";
    GetCurrentDirectoryA(sizeof path, path);
    EXPECT_TRUE(fs::equivalent(path, directory_.path("Sub")));
}

}  // namespace
