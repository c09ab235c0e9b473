// What the program's own versions of Windows' calls do beyond the originals.
#include <gtest/gtest.h>
#include <windows.h>

#include <sddl.h>
#include <thread>

#include "platform/files.h"
#include "tests/platform/test_window.h"
#include "tests/support/temp_directory.h"
#include "tests/support/user.h"

TEST(OwnCallsWindowsTest, AControlHasTheFontOfMessagesAndHandsTheKeyboardOnWhenItIsDisabled) {
    NONCLIENTMETRICSA metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    TestWindow window;
    window.show();
    HWND const button = window.addControl("Button", "One", WS_VISIBLE, 1, {10, 300, 100, 30});
    LOGFONTA font{};
    GetObjectA(reinterpret_cast<HFONT>(SendMessageA(button, WM_GETFONT, 0, 0)), sizeof font, &font);
    EXPECT_STREQ(font.lfFaceName, metrics.lfMessageFont.lfFaceName);
    clickButton(button);
    EXPECT_EQ(GetFocus(), button);
    SetWindowLongA(button, GWL_STYLE, WS_CHILD | WS_VISIBLE | WS_DISABLED);
    EXPECT_EQ(GetFocus(), window.handle);
}

TEST(OwnCallsWindowsTest, AKeyThatRefusesAllAccessIsRead) {
    constexpr const char* path = "Software\\Tidewright's test";
    HKEY key = nullptr;
    ASSERT_EQ(RegCreateKeyExA(HKEY_LOCAL_MACHINE, path, 0, nullptr, 0, KEY_ALL_ACCESS | KEY_WOW64_32KEY, nullptr, &key,
                              nullptr),
              ERROR_SUCCESS);
    PSECURITY_DESCRIPTOR readOnly = nullptr;
    ConvertStringSecurityDescriptorToSecurityDescriptorA("D:P(A;;KR;;;WD)", SDDL_REVISION_1, &readOnly, nullptr);
    EXPECT_EQ(RegSetKeySecurity(key, DACL_SECURITY_INFORMATION, readOnly), ERROR_SUCCESS);
    RegCloseKey(key);
    EXPECT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, path, 0, KEY_ALL_ACCESS, &key), ERROR_SUCCESS);
    EXPECT_EQ(RegSetValueExA(key, "x", 0, REG_SZ, nullptr, 0), ERROR_ACCESS_DENIED);
    RegCloseKey(key);
}

TEST(OwnCallsWindowsTest, AFileIsMadeAnewOnceNobodyElseHoldsTheDeletedOne) {
    const TempDirectory directory;
    directory.write("live.iff", "old");
    const std::string path = directory.path("live.iff");
    HANDLE const scanner = CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                                       OPEN_EXISTING, 0, nullptr);
    EXPECT_TRUE(DeleteFileA(path.c_str()));
    std::thread closing([=] {
        Sleep(200);
        CloseHandle(scanner);
    });
    std::FILE* const file = openFile(path.c_str(), "wb");
    EXPECT_NE(file, nullptr);
    closing.join();
    if (file != nullptr) std::fclose(file);
}
