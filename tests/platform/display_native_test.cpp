// The program where there is no screen: the same test program runs once more without one.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <string>

#include "platform/win32.h"

namespace {

struct ChildRun {
    std::string output;
    int exitCode;
};

// Runs the disabled case below in an environment with these settings.
ChildRun runWithout(const std::string& settings) {
    const std::string command =
        "env -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM " + settings + " '" +
        std::filesystem::read_symlink("/proc/self/exe").string() +
        "' --gtest_also_run_disabled_tests --gtest_filter=DisplayTest.DISABLED_NothingIsShown 2>&1";
    std::FILE* const pipe = popen(command.c_str(), "r");
    ChildRun run{};
    std::array<char, 4096> buffer{};
    for (std::size_t n = 0; (n = std::fread(buffer.data(), 1, buffer.size(), pipe)) > 0;)
        run.output.append(buffer.data(), n);
    run.exitCode = WEXITSTATUS(pclose(pipe));
    return run;
}

INT_PTR CALLBACK noProcedure(HWND, UINT, WPARAM, LPARAM) {
    return 0;
}

}  // namespace

TEST(DisplayTest, WithoutAScreenBoxesArePrintedAndAllElseRefuses) {
    for (const char* const settings : {
             "DISPLAY=",
             "DISPLAY=:4711",
             "DISPLAY=:4711 QT_QPA_PLATFORM=xcb",
             "DISPLAY= QT_QPA_PLATFORM=wayland XDG_RUNTIME_DIR=/nonexistent",
             "DISPLAY= QT_QPA_PLATFORM='eglfs;nonsense'",
         }) {
        SCOPED_TRACE(settings);
        const ChildRun run = runWithout(settings);
        EXPECT_EQ(run.exitCode, 0) << run.output;
        EXPECT_NE(run.output.find("Caf\xC3\xA9 title\nThe text\n"), std::string::npos) << run.output;
    }
}

TEST(DisplayTest, TheFirstUsablePlatformIsTaken) {
    const ChildRun run = runWithout("DISPLAY= QT_QPA_PLATFORM='nonsense;offscreen'");
    EXPECT_NE(run.exitCode, 0) << "there is a screen, so a window could be created";
    EXPECT_NE(run.output.find("CreateWindowExA"), std::string::npos) << run.output;
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
    RECT rectangle{0, 0, 90, 90};
    EXPECT_EQ(DrawTextA(screen, "text", -1, &rectangle, DT_LEFT), 0);
    BitBlt(screen, 0, 0, 9, 9, CreateCompatibleDC(screen), 0, 0, SRCCOPY);
    PostQuitMessage(6);
    MSG message{};
    EXPECT_EQ(GetMessageA(&message, nullptr, 0, 0), FALSE);
    EXPECT_EQ(message.wParam, WPARAM{6});
}
