#include "platform/native/paths.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <chrono>
#include <thread>

#include "platform/files.h"
#include "platform/native/text1252.h"
#include "platform/win32.h"
#include "tests/platform/scoped_variable.h"
#include "tests/support/temp_directory.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* accented1252 = "\xC9t\xE9.iff";          // "Été.iff"
constexpr const char* accentedUtf8 = "\xC3\x89t\xC3\xA9.iff";  // the same

// The working directory holds the prefix "Prefix", whose drive C is "Prefix/drive_c".
class PathsNativeTest : public testing::Test {
 protected:
    PathsNativeTest() {
        fs::current_path(directory_.path());
        directory_.write("Prefix/drive_c/Sims/Data/User42.iff", "x");
        directory_.makeDirectory("Prefix/dosdevices");
        fs::create_directory_symlink("../drive_c", "Prefix/dosdevices/c:");
    }

    TempDirectory directory_;
    ScopedVariable prefix_{"WINEPREFIX", directory_.path("Prefix")};
    FileStatus status_ = {};
};

TEST_F(PathsNativeTest, DrivesSeparatorsAndCaseAreMapped) {
    const std::string drive = directory_.path("Prefix/dosdevices/c:");
    const struct {
        std::string path, native;
    } rows[] = {
        {"C:", drive},
        {"C:\\", drive + "/"},
        {"c:\\Sims\\Data", drive + "/Sims/Data"},
        {"C:/sims\\\\DATA/user42.IFF", drive + "/Sims/Data/User42.iff"},
        {"C:\\sims\\New\\Too.iff", drive + "/Sims/New/Too.iff"},
        {"C:\\sims\\..\\SIMS\\.\\data", drive + "/Sims/../Sims/./Data"},
        {"Q:\\x", directory_.path("Prefix/dosdevices/q:/x")},
        {"prefix\\DRIVE_C\\new", "Prefix/drive_c/new"},
        {directory_.path("prefix") + "\\Drive_C", directory_.path("Prefix/drive_c")},
        {"new.iff", "new.iff"},
        {"\\", "/"},
        {"", ""},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(nativePath(row.path.c_str()), row.native) << row.path;
    }
    prefix_.set("");
    const ScopedVariable home("HOME", directory_.path("home"));
    EXPECT_EQ(nativePath("C:\\x"), directory_.path("home/.wine/dosdevices/c:/x"));
}

TEST_F(PathsNativeTest, ANameOutsideAsciiIsFoundRawThenAsUtf8AndMadeAsUtf8) {
    EXPECT_EQ(nativePath(accented1252), accentedUtf8);
    EXPECT_EQ(nativePath(accentedUtf8), accentedUtf8);
    for (const char* better : {"\xC3\x89T\xC3\xA9.IFF", accentedUtf8, accented1252}) {
        directory_.write(better, "x");
        EXPECT_EQ(nativePath(accented1252), better);
    }
    WIN32_FIND_DATAA found = {};
    EXPECT_TRUE(FindClose(FindFirstFileA(accentedUtf8, &found)));
    EXPECT_STREQ(found.cFileName, accented1252);
}

// Each step asks right after its change, and again when the listing had the time to settle.
TEST_F(PathsNativeTest, EveryChangeShowsAtOnce) {
    const std::string drive = "Prefix/drive_c/";
    const struct {
        const char *what, *from, *to;  // renamed; only `to`: written; only `from`: removed; in the drive
        const char* spelling;
    } steps[] = {
        {"at first", nullptr, nullptr, "Sims/Data/User42.iff"},
        {"the spelling that is asked for", nullptr, "Sims/Data/user42.iff", "Sims/Data/user42.iff"},
        {"it goes", "Sims/Data/user42.iff", nullptr, "Sims/Data/User42.iff"},
        {"another case", "Sims/Data/User42.iff", "Sims/Data/USER42.iff", "Sims/Data/USER42.iff"},
        {"the directory goes", "Sims/Data", "Aside", "Sims/Data/user42.iff"},
        {"another one comes", nullptr, "Sims/Data/USER42.IFF", "Sims/Data/USER42.IFF"},
        {"the first comes back", "Aside", "Sims/dATA", "Sims/Data/USER42.IFF"},
        {"the second goes", "Sims/Data", "Aside", "Sims/dATA/USER42.iff"},
        {"another case above", "Sims", "SIMS", "SIMS/dATA/USER42.iff"},
        {"a better directory above", nullptr, "Sims/x", "Sims/Data/user42.iff"},
    };
    const auto longAgo = fs::file_time_type::clock::now() - std::chrono::hours(1);
    for (const auto& step : steps) {
        SCOPED_TRACE(step.what);
        const char* changed = step.from != nullptr ? step.from : step.to;
        if (step.from != nullptr && step.to != nullptr) fs::rename(drive + step.from, drive + step.to);
        if (step.from == nullptr && step.to != nullptr) directory_.write(drive + step.to, "x");
        if (step.from != nullptr && step.to == nullptr) directory_.remove(drive + step.from);
        // As programs do that unpack archives: the time of writing tells nothing then.
        if (changed != nullptr) fs::last_write_time(fs::path(drive + changed).parent_path(), longAgo);
        for (const int wait : {0, 0, 40, 0}) {
            std::this_thread::sleep_for(std::chrono::milliseconds(wait));
            EXPECT_EQ(nativePath("C:\\Sims\\Data\\user42.iff"),
                      directory_.path("Prefix/dosdevices/c:/") + step.spelling);
        }
    }
}

TEST_F(PathsNativeTest, LinksAndPrefixesMayBeLaidAnew) {
    EXPECT_TRUE(queryFileStatus("C:\\Sims\\Data\\user42.iff", status_));
    directory_.makeDirectory("Other/Sims/Data");
    fs::remove("Prefix/dosdevices/c:");
    fs::create_directory_symlink("../../Other", "Prefix/dosdevices/c:");
    EXPECT_FALSE(queryFileStatus("C:\\Sims\\Data\\user42.iff", status_));
    directory_.write("Second/dosdevices/c:/Sims/Data/USER42.iff", "1234");
    prefix_.set(directory_.path("Second"));
    ASSERT_TRUE(queryFileStatus("C:\\Sims\\Data\\user42.iff", status_));
    EXPECT_EQ(status_.size, 4);
}

TEST_F(PathsNativeTest, QuickChangesLeaveNoStaleAnswer) {
    for (int i = 0; i < 500; ++i) {
        const std::string number = std::to_string(i);
        const std::string asked = "file" + number;
        ASSERT_FALSE(queryFileStatus(asked.c_str(), status_)) << asked;
        directory_.write("File" + number, "x");
        ASSERT_TRUE(queryFileStatus(asked.c_str(), status_)) << asked;
        fs::rename("File" + number, "FILE" + number);
        ASSERT_TRUE(queryFileStatus(asked.c_str(), status_)) << asked;
        directory_.remove("FILE" + number);
    }
}

TEST_F(PathsNativeTest, WhatIsRefusedHasWindowsReason) {
    ASSERT_EQ(mkfifo("pipe", 0666), 0);
    directory_.write("protected.iff", "kept");
    chmod("protected.iff", 0444);
    const struct {
        std::string path;
        const char* mode;
        DWORD error;
    } rows[] = {{"pipe", "rb", ERROR_ACCESS_DENIED},  // without waiting for its other end
                {"pipe", "wb", ERROR_ACCESS_DENIED},
                {"protected.iff", "wb", ERROR_ACCESS_DENIED},
                {"protected.iff", "a+b", ERROR_ACCESS_DENIED},
                {std::string(300, 'x'), "wb", ERROR_FILENAME_EXCED_RANGE},
                {"C:\\" + std::string(5000, 'x'), "wb", ERROR_FILENAME_EXCED_RANGE},
                {"new.iff", "w", ERROR_INVALID_PARAMETER},
                {"new.iff", "wb", ERROR_TOO_MANY_OPEN_FILES}};
    rlimit limit = {};
    getrlimit(RLIMIT_NOFILE, &limit);
    for (const auto& row : rows) {
        const rlimit none = {0, limit.rlim_max};
        if (row.error == ERROR_TOO_MANY_OPEN_FILES) setrlimit(RLIMIT_NOFILE, &none);
        EXPECT_EQ(openFile(row.path.c_str(), row.mode), nullptr) << row.path;
        EXPECT_EQ(GetLastError(), row.error) << row.path;
    }
    setrlimit(RLIMIT_NOFILE, &limit);
    EXPECT_EQ(directory_.bytesOf("protected.iff"), bytesFrom("kept"));
}

TEST_F(PathsNativeTest, ADirectoryThatLetsNobodyWriteIsReadOnlyForRootToo) {
    for (const mode_t mode : {0555U, 0755U}) {
        chmod("Prefix", mode);
        ASSERT_TRUE(queryFileStatus("prefix", status_));
        EXPECT_EQ(status_.mode, mode == 0755 ? writableDirectoryMode : readOnlyDirectoryMode);
    }
}

TEST(Text1252Test, BytesStandForTheirCharacters) {
    const struct {
        const char *utf8, *text;
    } rows[] = {{"Ab \xE2\x82\xAC\xC5\xB8\xC2\x81", "Ab \x80\x9F\x81"}, {"\xC2\xA0\xC3\xBF", "\xA0\xFF"}};
    for (const auto& row : rows) {
        EXPECT_EQ(utf8From1252(row.text), row.utf8);
        EXPECT_EQ(text1252FromUtf8(row.utf8), row.text);
    }
    EXPECT_EQ(text1252FromUtf8("\xE6\x97\xA5\xF0\x9F\x98\x80!"), "?\?!") << "characters that the code page lacks";
    EXPECT_EQ(text1252FromUtf8("\xE9t\xE9 \xC3"), "\xE9t\xE9 \xC3") << "not UTF-8";
    for (const char* damaged : {"\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xE2\x82", "\x80"}) {
        EXPECT_FALSE(isUtf8(damaged));
    }
}

}  // namespace
