// The program where there is no screen: the same test program runs once more without one.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "platform/win32.h"

namespace {

// Runs the disabled case below in an environment with these settings; returns its output and in front of it the exit
// code.
std::string runWith(const std::string& settings) {
    const std::string command = "env -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM " + settings + " '" +
                                std::filesystem::read_symlink("/proc/self/exe").string() +
                                "' --gtest_also_run_disabled_tests --gtest_filter=*DISABLED_NothingIsShown 2>&1";
    std::FILE* const pipe = popen(command.c_str(), "r");
    std::string output;
    for (int c = 0; (c = std::fgetc(pipe)) != EOF;)
        output.push_back(static_cast<char>(c));
    return std::to_string(WEXITSTATUS(pclose(pipe))) + output;
}

INT_PTR CALLBACK noProcedure(HWND, UINT, WPARAM, LPARAM) {
    return 0;
}

}  // namespace

TEST(DisplayTest, WithoutAScreenBoxesArePrintedAndAllElseRefuses) {
    const std::pair<const char*, const char*> rows[] = {
        {"DISPLAY=", "Caf\xC3\xA9 title\nThe text\n"},
        {"DISPLAY=:4711", "Caf\xC3\xA9 title\nThe text\n"},
        {"DISPLAY=:4711 QT_QPA_PLATFORM=xcb", "Caf\xC3\xA9 title\nThe text\n"},
        {"DISPLAY= QT_QPA_PLATFORM=wayland XDG_RUNTIME_DIR=/nonexistent", "Caf\xC3\xA9 title\nThe text\n"},
        {"DISPLAY= QT_QPA_PLATFORM='eglfs;nonsense'", "Caf\xC3\xA9 title\nThe text\n"},
        {"DISPLAY= QT_QPA_PLATFORM='nonsense;offscreen'", "CreateWindowExA"},  // it fails: there is a screen
    };
    for (const auto& [settings, expected] : rows) {
        const std::string run = runWith(settings);
        EXPECT_NE(run.find(expected), std::string::npos) << settings << run;
        EXPECT_EQ(run.front(), *expected == 'C' && expected[1] == 'a' ? '0' : '1') << settings << run;
    }
}

TEST(DisplayTest, DISABLED_NothingIsShown) {
    WNDCLASSEXA windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = DefWindowProcA;
    windowClass.lpszClassName = "Unseen";
    EXPECT_NE(RegisterClassExA(&windowClass), 0);
    ASSERT_EQ(CreateWindowExA(0, "Unseen", "", WS_OVERLAPPEDWINDOW, 0, 0, 90, 90, nullptr, nullptr, nullptr, nullptr),
              nullptr);
    EXPECT_EQ(MessageBoxA(nullptr, "The text", "Caf\xE9 title", MB_OKCANCEL), 0);
    EXPECT_EQ(DialogBoxParamA(nullptr, MAKEINTRESOURCEA(103), nullptr, noProcedure, 0), -1);
    EXPECT_EQ(FindWindowA(nullptr, "Unseen"), nullptr);
    SetCursor(LoadCursorA(nullptr, IDC_WAIT));
    HDC const screen = GetDC(nullptr);
    RECT place{0, 0, 90, 90};
    EXPECT_EQ(DrawTextA(screen, "text", -1, &place, DT_LEFT), 0);
    BitBlt(screen, 0, 0, 9, 9, CreateCompatibleDC(screen), 0, 0, SRCCOPY);
    PostQuitMessage(6);
    MSG message{};
    EXPECT_EQ(GetMessageA(&message, nullptr, 0, 0), FALSE);
    EXPECT_EQ(message.wParam, WPARAM{6});
}
