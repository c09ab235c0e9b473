// The layer without a display. The test program starts itself once more without one.
#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/win32.h"
#include "tests/support/scoped_variable.h"

namespace {

[[noreturn]] void useEverything() {
    EXPECT_EQ(CreateWindowExA(0, "Button", "", 0, 0, 0, 90, 90, nullptr, nullptr, nullptr, nullptr), nullptr);
    EXPECT_EQ(DialogBoxParamA(nullptr, MAKEINTRESOURCEA(103), nullptr, nullptr, 0), -1);
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
    EXPECT_EQ(MessageBoxA(nullptr, "The text", "Caf\xE9 title", MB_OKCANCEL), 0);
    std::exit(testing::Test::HasFailure() ? 1 : 0);
}

}  // namespace

TEST(DisplayTest, WithoutAScreenBoxesArePrintedAndAllElseRefuses) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const ScopedVariable display("DISPLAY", ":4711");
    const ScopedVariable sockets("XDG_RUNTIME_DIR", "/nonexistent");
    for (const char* const platform : {"", "xcb", "wayland", "eglfs;nonsense"}) {
        const ScopedVariable chosen("QT_QPA_PLATFORM", platform);
        EXPECT_EXIT(useEverything(), testing::ExitedWithCode(0), "Caf\xC3\xA9 title\nThe text\n") << platform;
    }
}
