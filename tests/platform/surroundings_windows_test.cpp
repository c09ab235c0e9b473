// What a program asks of Windows around it.
#include "platform/child_process.h"
#include "platform/console.h"
#include "platform/files.h"
#include "platform/last_written.h"
#include "platform/own_directory.h"
#include "platform/win32.h"
#include "tests/support/temp_directory.h"

namespace {

TEST(SurroundingsWindowsTest, TheOwnDirectoryIsInTheLocalApplicationData) {
    const OwnDirectory own = ownDirectory("Tidewright's test");
    EXPECT_EQ(own.fault, "");
    EXPECT_EQ(own.path, std::string(std::getenv("LOCALAPPDATA")) + "\\Tidewright's test");
    EXPECT_TRUE(fs::is_empty(own.path));
    fs::remove(own.path);
    EXPECT_TRUE(writeFile(own.path, "x"));
    EXPECT_EQ(ownDirectory("Tidewright's test").fault, own.path + " isn't a directory.");
    fs::remove(own.path);
}

// The program starts itself once more, with the variable that says how to end.
TEST(SurroundingsWindowsTest, AProgramIsRunInItsDirectoryAndItsEndReported) {
    if (const char* const wanted = std::getenv("TIDEWRIGHT_TEST_CODE")) {
        std::ofstream("here") << "x";
        ExitProcess(static_cast<UINT>(std::atoi(wanted)));
    }
    const TempDirectory files;
    const DirectoryLock lock(files.path().c_str());
    int code = 5;
    EXPECT_FALSE(runAndWait(files.path("missing.exe"), files.path(), lock, code));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(code, 5);
    SetEnvironmentVariableA("GTEST_FILTER", "*AProgramIsRun*");
    for (const int wanted : {0, 7, -2}) {
        SetEnvironmentVariableA("TIDEWRIGHT_TEST_CODE", std::to_string(wanted).c_str());
        EXPECT_TRUE(runAndWait(programBeside("platform_tests"), files.path(), lock, code));
        EXPECT_EQ(code, wanted);
        files.remove("here");
    }
    SetEnvironmentVariableA("TIDEWRIGHT_TEST_CODE", nullptr);
    SetEnvironmentVariableA("GTEST_FILTER", nullptr);
}

TEST(SurroundingsWindowsTest, WordsReachAFileAndElseTheConsole) {
    const TempDirectory files;
    HANDLE const before = GetStdHandle(STD_OUTPUT_HANDLE);
    HANDLE const file = CreateFileA(files.path("words").c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
    SetStdHandle(STD_OUTPUT_HANDLE, file);
    EXPECT_TRUE(writeToOutput("Caf\xE9\n"));
    CloseHandle(file);
    EXPECT_EQ(files.bytesOf("words"), bytesFrom("Caf\xE9\r\n"));

    SetStdHandle(STD_OUTPUT_HANDLE, nullptr);
    FreeConsole();
    ASSERT_TRUE(AllocConsole());  // in place of the one of a program that started this one
    SetStdHandle(STD_OUTPUT_HANDLE, nullptr);
    EXPECT_TRUE(writeToOutput("Caf\xE9\nnext"));
    HANDLE const console =
        CreateFileA("CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    wchar_t shown[5] = L"";
    DWORD count = 0;
    ReadConsoleOutputCharacterW(console, shown, 4, {0, 1}, &count);  // the first line was the prompt's
    EXPECT_EQ(std::wstring(shown), L"Caf\xE9");
    CloseHandle(console);
    FreeConsole();
    SetStdHandle(STD_OUTPUT_HANDLE, before);
}

TEST(SurroundingsWindowsTest, TheLastWriteIsShownInLocalTime) {
    const TempDirectory files;
    files.write("x", "x");
    SYSTEMTIME now = {};
    GetLocalTime(&now);
    EXPECT_EQ(lastWritten(files.path("x").c_str()).substr(0, 4), std::to_string(now.wYear));
    EXPECT_EQ(lastWritten(files.path("y").c_str()), "");
}

}  // namespace
