#include "platform/files.h"
#include "platform/native/files/paths.h"

#include <gtest/gtest.h>

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
        for (const char* const file : {"SIMS/x", "SimsZ/x", "Sims/Data/USER42.iff", "Sims/Data/User42.iff"})
            directory_.write(std::string("Prefix/drive_c/") + file, "x");
        directory_.makeDirectory("Prefix/dosdevices");
        fs::create_directory_symlink("../drive_c", "Prefix/dosdevices/c:");
    }

    static std::string located(const std::string& path) { return locate(path.c_str()).name; }
    static auto openDescriptors() { return std::distance(fs::directory_iterator("/proc/self/fd"), {}); }

    TempDirectory directory_;
    ScopedVariable prefix_{"WINEPREFIX", directory_.path("Prefix")};
};

TEST_F(PathsNativeTest, DrivesSeparatorsAndCaseAreMapped) {
    const std::string drive = directory_.path("Prefix/dosdevices/c:");
    const struct {
        const char* what;
        std::string path, native;
    } rows[] = {
        {"a drive", "C:\\", drive + "/"},
        {"slashes", "C:/Sims\\\\DATA/user42.IFF", drive + "/Sims/Data/USER42.iff"},
        {"the exact spelling first", "c:\\Sims\\data\\User42.iff", drive + "/Sims/Data/User42.iff"},
        {"the first in byte order else", "C:\\sims\\Data\\New.iff", drive + "/SIMS/Data/New.iff"},
        {"steps back", "C:\\Sims\\..\\sIMS\\.\\X", drive + "/Sims/../SIMS/./x"},
        {"the last letter", "C:\\simsz\\X", drive + "/SimsZ/x"},
        {"no such drive", "Z:\\x", directory_.path("Prefix/dosdevices/z:/x")},
        {"a native path", directory_.path("prefix") + "\\Drive_C", directory_.path("Prefix/drive_c")},
        {"a relative path", "prefix\\DRIVE_C\\", "Prefix/drive_c/"},
        {"in the root", "/PROC", "/proc"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(nativePath(row.path.c_str()), row.native) << row.what;
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

TEST_F(PathsNativeTest, ASteadyDirectoryIsReadOnceAndLetGo) {
    const std::string data = "c:\\Sims\\DATA\\";
    const auto before = openDescriptors();
    {
        const SteadyDirectories steady;
        for (const auto& [asked, found] : {std::pair("User42.iff", "User42.iff"), {"user42.iff", "USER42.iff"}}) {
            const SteadyDirectories nested;
            EXPECT_EQ(located(data + asked), found);
            EXPECT_EQ(openDescriptors(), before + 1);
        }
        directory_.write("Prefix/drive_c/Sims/Data/NEW.iff", "x");  // against the promise
        EXPECT_EQ(located(data + "new.iff"), "new.iff");
    }
    EXPECT_EQ(openDescriptors(), before);
    const std::string way = "/dosdevices/c:/Sims/";
    EXPECT_EQ(located(data + "new.iff"), directory_.path("Prefix") + way + "Data/NEW.iff");
    prefix_.set(directory_.path("Other"));
    EXPECT_EQ(located(data + "new.iff"), directory_.path("Other") + way + "DATA/new.iff");
}

TEST_F(PathsNativeTest, ADirectoryThatLetsNobodyWriteSaysSo) {
    directory_.makeDirectory("Protected");
    fs::permissions("Protected", fs::perms::owner_read);
    FileStatus status{};
    EXPECT_TRUE(queryFileStatus("protected", status));
    EXPECT_EQ(status.mode, readOnlyDirectoryMode);
}

}  // namespace
