// Windows and the message loop.
#include <gtest/gtest.h>

#include "tests/platform/test_window.h"
#include "tests/support/user.h"

TEST(WindowTest, ItsMessagesComeInWindowsOrder) {
    TestWindow window;
    HWND const button = window.addControl("Button", "One", WS_VISIBLE, 1, {0, 0, 90, 30});
    EXPECT_GE(window.atCreation[3], 400);
    UpdateWindow(window.handle);
    EXPECT_EQ(window.takeLog(), Log{"create"}) << "nothing waits in a hidden window";

    EXPECT_EQ(ShowWindow(window.handle, SW_SHOWNORMAL), FALSE);
    UpdateWindow(window.handle);
    EXPECT_EQ(window.takeLog(), Log{"paint"});
    EXPECT_EQ(clientOf(window.handle), window.atCreation);
    EXPECT_EQ(ShowWindow(window.handle, SW_HIDE), TRUE);
    const LONG style = SetWindowLongA(window.handle, GWL_STYLE, WS_OVERLAPPEDWINDOW);
    EXPECT_FALSE(static_cast<DWORD>(style) & WS_VISIBLE);
    window.show();
    EXPECT_EQ(window.takeLog(), Log{"paint"});

    for (const bool keeps : {true, false}) {
        window.keepsOpen = keeps;
        closeWindow(window.handle);
        runMessages();
        EXPECT_EQ(window.takeLog(), keeps ? Log{"close"} : (Log{"close", "destroy"}));
        EXPECT_EQ(IsWindow(window.handle) != FALSE, keeps);
    }
    EXPECT_FALSE(IsWindow(button));
}

TEST(WindowTest, WhatWaitsIsDrawnByAnUpdateOrByAQuietLoop) {
    TestWindow window;
    window.show();
    EXPECT_EQ(window.painted, clientOf(window.handle));
    window.takeLog();
    const RECT one{-50, 20, 30, 40};  // to the left there is nothing
    const RECT other{25, 35, 60, 50};
    InvalidateRect(window.handle, &one, TRUE);
    InvalidateRect(window.handle, &other, FALSE);
    EXPECT_EQ(window.takeLog(), Log{});
    UpdateWindow(window.handle);
    EXPECT_EQ(window.takeLog(), Log{"paint"});
    EXPECT_EQ(window.painted, (std::vector<int>{0, 20, 60, 50}));
    UpdateWindow(window.handle);
    runMessages();
    EXPECT_EQ(window.takeLog(), Log{}) << "nothing waits any more";

    InvalidateRect(window.handle, &one, TRUE);
    runMessages();
    EXPECT_EQ(window.takeLog(), Log{"paint"});
}
