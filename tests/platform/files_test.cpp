#include "platform/files.h"

#include <chrono>
#include <ctime>
#include <functional>
#include <tuple>

#include "platform/part_names.h"
#include "platform/win32.h"
#include "tests/support/temp_directory.h"

namespace {

// The working directory holds "User00042.iff", the directory "Sub", and "protected.iff", which can't be written.
class FilesTest : public testing::Test {
 protected:
    FilesTest() {
        fs::current_path(directory_.path());
        directory_.makeDirectory("Sub");
        directory_.write("User00042.iff", "old");
        directory_.write("protected.iff", "kept");
        fs::permissions("protected.iff", fs::perms::owner_read);
    }

    std::string contentOf(const std::string& name) const {
        const Bytes bytes = directory_.exists(name) ? directory_.bytesOf(name) : bytesFrom("no such file");
        return {bytes.begin(), bytes.end()};
    }

    TempDirectory directory_;
};

TEST_F(FilesTest, AModeDecidesWhatAnOpenedFileHolds) {
    for (const auto& [mode, content] : {std::pair("r+b", "XYd"), {"wb", "XY"}, {"ab", "oldXY"}, {"a+b", "oldXY"}}) {
        directory_.write("User00042.iff", "old");
        std::FILE* file = openFile("sub\\..\\user00042.IFF", mode);
        ASSERT_NE(file, nullptr) << mode;
        EXPECT_EQ(std::fwrite("XY", 1, 2, file), 2U);
        EXPECT_EQ(contentOf("User00042.iff"), content) << mode << ": held back in a buffer";
        EXPECT_EQ(std::fclose(file), 0);
    }
}

TEST_F(FilesTest, EachRefusalHasItsReason) {
    const auto opens = [](const char* path, const char* mode) { return openFile(path, mode) != nullptr; };
    const auto replaces = [](const char* path) { return NewVersion(path).open(path) != nullptr; };
    const std::tuple<const char*, std::function<bool()>, DWORD> rows[] = {
        {"change a missing file", [&] { return opens("none.iff", "r+b"); }, ERROR_FILE_NOT_FOUND},
        {"read a directory", [&] { return opens("sub", "rb"); }, ERROR_ACCESS_DENIED},
        {"replace a directory", [&] { return replaces("sub"); }, ERROR_ACCESS_DENIED},
        {"replace in a missing directory", [&] { return replaces("none\\new.iff"); }, ERROR_PATH_NOT_FOUND},
        {"delete a directory", [] { return DeleteFileA("sub"); }, ERROR_ACCESS_DENIED},
        {"delete a protected file", [] { return DeleteFileA("protected.iff"); }, ERROR_ACCESS_DENIED},
        {"make one in none", [] { return CreateDirectoryA("none\\New", nullptr); }, ERROR_PATH_NOT_FOUND},
    };
    for (const auto& [what, works, error] : rows) {
        SetLastError(NO_ERROR);
        EXPECT_FALSE(works()) << what;
        EXPECT_EQ(GetLastError(), error) << what;
    }
}

TEST_F(FilesTest, AStatusHasTheTimeOfTheLastWriteAndADiskHasRoom) {
    const auto day = fs::file_time_type::clock::now() - std::chrono::hours(24);
    fs::last_write_time("User00042.iff", day);
    FileStatus status{}, present{};
    EXPECT_TRUE(queryFileStatus("user00042.iff", status) && queryFileStatus("sub", present));
    EXPECT_NEAR(static_cast<double>(status.written), static_cast<double>(std::time(nullptr) - 86'400), 60);
    EXPECT_NEAR(static_cast<double>(present.written), static_cast<double>(std::time(nullptr)), 60);
    EXPECT_NEAR(static_cast<double>(freeRoomIn("sub")), static_cast<double>(fs::space("Sub").available), 1e9);
    EXPECT_EQ(freeRoomIn("none"), -1);
}

TEST_F(FilesTest, AProtectedFileIsNotWritten) {
    EXPECT_EQ(openFile("protected.iff", "wb"), nullptr);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_ACCESS_DENIED});
    EXPECT_EQ(contentOf("protected.iff"), "kept");
}

TEST_F(FilesTest, ANewVersionTakesItsNameWhenItIsComplete) {
    const std::string part = "User00042.iff.tidewright-new0", aside = "User00042.iff.tidewright-old0";
    enum Act { none, name, setAsideAndName, setAsideAndLoseThePart };
    const std::tuple<const char*, Act, std::string, std::string> rows[] = {
        {"discarded", none, "old", "no such file"},
        {"named", name, "new", "no such file"},
        {"not named, so that the older file comes back", setAsideAndLoseThePart, "old", "no such file"},
        {"named where the older file had been", setAsideAndName, "new", "old"}};
    for (const auto& [what, act, live, asideAfterwards] : rows) {
        SCOPED_TRACE(what);
        directory_.write("User00042.iff", "old");
        fs::current_path(directory_.path());
        {
            NewVersion version("user00042.iff");
            fs::current_path(directory_.path("Sub"));
            std::FILE* file = version.open("");
            ASSERT_NE(file, nullptr);
            EXPECT_EQ(std::fwrite("new", 1, 3, file), 3U);
            EXPECT_TRUE(version.complete());
            EXPECT_EQ(contentOf("User00042.iff") + contentOf(part), "oldnew");
            if (act >= setAsideAndName) {
                EXPECT_TRUE(version.setAside());
                EXPECT_EQ(contentOf("User00042.iff") + contentOf(aside), "no such fileold");
            }
            if (act == setAsideAndLoseThePart) directory_.remove(part);
            EXPECT_EQ(act != none && version.giveName(), act == name || act == setAsideAndName);
        }
        EXPECT_EQ(contentOf("User00042.iff"), live);
        EXPECT_EQ(contentOf(aside), asideAfterwards);
        EXPECT_EQ(contentOf(part), "no such file");
    }
    EXPECT_EQ(fileNamesIn(directory_.path().c_str()).size(), 3U) << "the name is spelled as it was";
    NewVersion next("..\\User00042.iff");
    EXPECT_TRUE(next.open("") && next.complete() && next.setAside() && contentOf(aside) == "old") << "by another name";
}

TEST_F(FilesTest, OfEndedProcessesPartsGoAndAFileThatHasNoNewVersionComesBack) {
    const std::string stay[] = {".tidewright-new0",      "a.iff.tidewright-new",  "a.iff.tidewright-new10",
                                "a.iff.tidewright-newx", "a.iff.TIDEWRIGHT-new0", "~partner.tmp"};
    for (const std::string& name : stay)
        directory_.write(name, "stays");
    for (const char* const name :
         {"a.iff.tidewright-new0", "gone.iff.tidewright-new9", "User00042.iff.tidewright-old3"})
        directory_.write(name, "goes");
    directory_.write("gone.iff.tidewright-old4", "comes back");
    clearLeftOverParts(".");
    EXPECT_EQ(contentOf("gone.iff"), "comes back");
    std::vector<std::string> expected(std::begin(stay), std::end(stay));
    expected.insert(expected.end(), {"User00042.iff", "gone.iff", "protected.iff"});
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(fileNamesIn("."), expected);
}

TEST_F(FilesTest, NamesAreDeletedFoundAndEnteredInAnyCase) {
    EXPECT_TRUE(DeleteFileA("user00042.iff"));
    EXPECT_FALSE(directory_.exists("User00042.iff"));
    WIN32_FIND_DATAA found = {};
    EXPECT_TRUE(FindClose(FindFirstFileA(".\\SUB", &found)));
    EXPECT_STREQ(found.cFileName, "Sub");
    EXPECT_TRUE(SetCurrentDirectoryA("sub"));
    char path[MAX_PATH] = "";
    const DWORD length = GetCurrentDirectoryA(sizeof path, path);
    EXPECT_TRUE(fs::equivalent(path, directory_.path("Sub")));
    EXPECT_EQ(GetCurrentDirectoryA(length, path), length + 1) << "no room for the terminator";
}

}  // namespace
