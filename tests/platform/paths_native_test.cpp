#include "platform/files.h"
#include "platform/native/files/paths.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "tests/support/scoped_variable.h"
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
};

TEST_F(PathsNativeTest, DrivesSeparatorsAndCaseAreMapped) {
    const std::string drive = directory_.path("Prefix/dosdevices/c:");
    const struct {
        std::string path, native;
    } rows[] = {
        {"C:\\", drive + "/"},
        {"C:/sims\\\\DATA/user42.IFF", drive + "/Sims/Data/User42.iff"},
        {"C:\\sims\\New\\Too.iff", drive + "/Sims/New/Too.iff"},
        {"c:\\sims\\..\\SIMS\\.\\data", drive + "/Sims/../Sims/./Data"},
        {directory_.path("prefix") + "\\Drive_C", directory_.path("Prefix/drive_c")},
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
    for (const char* better : {"\xC3\x89T\xC3\xA9.IFF", accentedUtf8, accented1252}) {
        directory_.write(better, "x");
        EXPECT_EQ(nativePath(accented1252), better);
    }
}

// Each step asks right after its change, and again when the listing had the time to settle.
TEST_F(PathsNativeTest, EveryChangeShowsAtOnce) {
    const std::string drive = "Prefix/drive_c/";
    const struct {
        const char *what, *from, *to;  // renamed; only `to`: written; in the drive
        const char* spelling;
    } steps[] = {
        {"at first", nullptr, nullptr, "Sims/Data/User42.iff"},
        {"the spelling that is asked for", nullptr, "Sims/Data/user42.iff", "Sims/Data/user42.iff"},
        {"it goes", "Sims/Data/user42.iff", "Sims/gone", "Sims/Data/User42.iff"},
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
        if (step.from != nullptr) fs::rename(drive + step.from, drive + step.to);
        if (step.from == nullptr && step.to != nullptr) directory_.write(drive + step.to, "x");
        // As programs do that unpack archives: the time of writing tells nothing then.
        if (changed != nullptr) fs::last_write_time(fs::path(drive + changed).parent_path(), longAgo);
        for (const int wait : {0, 0, 40, 0}) {
            std::this_thread::sleep_for(std::chrono::milliseconds(wait));
            EXPECT_EQ(nativePath("C:\\Sims\\Data\\user42.iff"),
                      directory_.path("Prefix/dosdevices/c:/") + step.spelling);
        }
    }
}

TEST_F(PathsNativeTest, ADirectoryThatLetsNobodyWriteSaysSo) {
    directory_.makeDirectory("Protected");
    fs::permissions("Protected", fs::perms::owner_read);
    FileStatus status{};
    EXPECT_TRUE(queryFileStatus("protected", status));
    EXPECT_EQ(status.mode, readOnlyDirectoryMode);
}

}  // namespace
