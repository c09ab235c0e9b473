// What a program asks of the system around it: directories, settings and other programs.
#include "platform/child_process.h"
#include "platform/console.h"
#include "platform/files.h"
#include "platform/own_directory.h"
#include "platform/path_text.h"
#include "platform/win32.h"
#include "tests/support/scoped_variable.h"
#include "tests/support/temp_directory.h"

namespace {

TEST(SurroundingsNativeTest, TheOwnDirectoryIsMadeOrTheReasonNamed) {
    const TempDirectory files;
    files.write("file", "x");
    const std::string home = files.path("home"), longest = files.path(std::string(150, 'x'));
    const std::tuple<const char*, std::string, std::string, std::string, std::string> rows[] = {
        {"the usual place", home, "", home + "/.local/share/tidewright", ""},
        {"a relative variable", home, "data", home + "/.local/share/tidewright", ""},
        {"the variable", "", files.path("data//"), files.path("data/tidewright"), ""},
        {"no home", "", "", "", "HOME has no value, so there is no place for this program's files."},
        {"a file in the way", files.path("file"), "", files.path("file/.local/share/tidewright"),
         "The directory " + files.path("file/.local/share/tidewright") + " can't be made: Not a directory."},
        {"too long", longest, "", longest + "/.local/share/tidewright",
         "The path " + longest + "/.local/share/tidewright has 200 characters or more, which is too long."},
    };
    for (const auto& [what, inHome, inData, path, fault] : rows) {
        const ScopedVariable homeVariable("HOME", inHome), dataVariable("XDG_DATA_HOME", inData);
        const OwnDirectory own = ownDirectory("Tidewright");
        EXPECT_EQ(own.path, path) << what;
        EXPECT_EQ(own.fault, fault) << what;
        EXPECT_TRUE(!fault.empty() || fs::is_directory(own.path)) << what;
    }
}

TEST(SurroundingsNativeTest, SettingsKeepTheBytesOfPathsAndWithstandAnyFile) {
    const TempDirectory files;
    const std::string file = files.path("settings.ini");
    const auto read = [&](const char* name, DWORD size) {
        char text[100] = "untouched";
        const DWORD length = GetPrivateProfileStringA("Game", name, "none", text, size, file.c_str());
        EXPECT_EQ(length, std::string(text).size());
        return std::string(text);
    };
    EXPECT_EQ(read("Directory", 100), "none");
    for (const char* const value : {"/home/j\xC3\xBCrgen/\xC5\x81\xC3\xB3", "a=b;c,d \"e\" \\f%20", "plain"}) {
        EXPECT_NE(WritePrivateProfileStringA("Game", "Directory", value, file.c_str()), FALSE);
        EXPECT_NE(WritePrivateProfileStringA("Game", "Other", "kept", file.c_str()), FALSE);
        EXPECT_EQ(read("Directory", 100), value);
    }
    EXPECT_EQ(read("Directory", 3), "pl");
    WritePrivateProfileStringA("Game", "Directory", nullptr, file.c_str());
    EXPECT_EQ(read("Directory", 100) + read("Other", 100), "nonekept");
    for (const char* const bad : {"\xFF\xFE\x01[\n==]", "[Game", "[Game]\nDirectory", "[Game]\n\"=1"}) {
        files.write("settings.ini", bad);
        const std::string value = read("Directory", 100);
        EXPECT_TRUE(value == "none" || value.empty()) << bad << ": " << value;
    }
    EXPECT_EQ(WritePrivateProfileStringA("Game", "x", "y", files.path("settings.ini/x.ini").c_str()), FALSE);
}

TEST(SurroundingsNativeTest, AProgramIsRunInItsDirectoryAndItsEndReported) {
    const TempDirectory files;
    const DirectoryLock lock(files.path("missing").c_str());
    const auto run = [&](const char* script) {
        files.write("script", std::string("#!/bin/sh\n") + script);
        fs::permissions(files.path("script"), fs::perms::owner_all);
        int code = -1;
        EXPECT_TRUE(runAndWait(files.path("script"), files.path(), lock, code)) << script;
        return code;
    };
    EXPECT_EQ(run("echo \"$0\" >here"), 0);
    EXPECT_TRUE(files.exists("here"));
    EXPECT_EQ(run("exit 254"), 254);
    EXPECT_EQ(run("kill -SEGV $$"), 139);
    int code = 5;
    EXPECT_FALSE(runAndWait(files.path("missing"), files.path(), lock, code));
    EXPECT_EQ(GetLastError(), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(code, 5);
}

// The second program is this one, which starts another.
TEST(SurroundingsNativeTest, ALockIsSharedWithTheProgramThatIsRunButNotWithWhatThatStarts) {
    const char* const stay = "sleep 3 >/dev/null 2>&1 &";
    if (std::getenv("TIDEWRIGHT_TEST_CHILD") != nullptr) std::exit(std::system(stay));
    const TempDirectory files;
    files.write("script", std::string("#!/bin/sh\n") + stay);
    fs::permissions(files.path("script"), fs::perms::owner_all);
    const ScopedVariable child("TIDEWRIGHT_TEST_CHILD", "x"), filter("GTEST_FILTER", "*ALockIsShared*");
    for (const std::string& program : {files.path("script"), programBeside("platform_tests")}) {
        int code = -1;
        EXPECT_TRUE(runAndWait(program, files.path(), DirectoryLock(files.path().c_str()), code));
        EXPECT_EQ(code, 0);
        const bool isShared = program == files.path("script");
        EXPECT_EQ(DirectoryLock(files.path().c_str()).isHeldByAnother(), isShared) << program;
        EXPECT_TRUE(DirectoryLock(files.path().c_str()).isHeld()) << "2 more seconds are enough";
    }
}

TEST(SurroundingsNativeTest, WordsAreWrittenAndPathsShownInTheTerminalsForm) {
    testing::internal::CaptureStdout();
    EXPECT_TRUE(writeToOutput("Caf\xE9\n" + shownPath("/home/j\xC3\xBCrgen\\UserData") + "\n"));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Caf\xC3\xA9\n/home/j\xC3\xBCrgen/UserData\n");
}

}  // namespace
