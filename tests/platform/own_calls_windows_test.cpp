// What the program's own versions of Windows' calls do besides.
#include <gtest/gtest.h>

#include "tests/platform/test_window.h"
#include "tests/support/user.h"

TEST(OwnCallsWindowsTest, AControlHasTheFontOfMessagesAndHandsTheKeyboardOnWhenItIsDisabled) {
    TestWindow window;
    window.show();
    HWND const button = window.addControl("Button", "One", WS_VISIBLE, 1, {10, 300, 100, 30});
    EXPECT_NE(SendMessageA(button, WM_GETFONT, 0, 0), 0);
    clickButton(button);
    EXPECT_EQ(GetFocus(), button);
    SetWindowLongA(button, GWL_STYLE, WS_CHILD | WS_VISIBLE | WS_DISABLED);
    EXPECT_EQ(GetFocus(), window.handle);
}
