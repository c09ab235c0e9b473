// Windows and the message loop.
#include <gtest/gtest.h>

#include "tests/platform/test_window.h"
#include "tests/support/user.h"

TEST(WindowTest, ItsMessagesComeInWindowsOrder) {
    RECT atCreation{};
    bool stays = false;
    TestWindow window([&](HWND handle, UINT message) -> std::optional<LRESULT> {
        if (message == WM_CREATE) GetClientRect(handle, &atCreation);
        return message == WM_CLOSE && stays ? std::optional<LRESULT>(0) : std::nullopt;
    });
    EXPECT_GE(atCreation.right, 480);
    EXPECT_GE(atCreation.bottom, 400);
    UpdateWindow(window.handle);
    EXPECT_EQ(window.takeLog(), Log{"create"}) << "nothing waits in a hidden window";

    EXPECT_EQ(ShowWindow(window.handle, SW_SHOWNORMAL), FALSE);
    UpdateWindow(window.handle);
    EXPECT_TRUE(isVisible(window.handle));
    EXPECT_EQ(window.takeLog(), Log{"paint"});
    EXPECT_EQ(sides(window.client()), sides(atCreation));
    EXPECT_EQ(ShowWindow(window.handle, SW_HIDE), TRUE);
    EXPECT_FALSE(isVisible(window.handle));
    window.show();
    EXPECT_EQ(window.takeLog(), Log{"paint"});

    for (const bool keeps : {true, false}) {
        stays = keeps;
        closeWindow(window.handle);
        runMessages();
        EXPECT_EQ(window.takeLog(), keeps ? Log{"close"} : (Log{"close", "destroy"}));
        EXPECT_EQ(IsWindow(window.handle) != FALSE, keeps);
    }
}

TEST(WindowTest, AnAnswerOfMinusOneUndoesTheCreation) {
    HWND seen = nullptr;
    const TestWindow window([&seen](HWND handle, UINT message) -> std::optional<LRESULT> {
        seen = handle;
        return message == WM_CREATE ? std::optional<LRESULT>(-1) : std::nullopt;
    });
    EXPECT_EQ(window.handle, nullptr);
    EXPECT_FALSE(IsWindow(seen));
}

TEST(WindowTest, ItsControlsOutliveItsDestructionMessage) {
    HWND button = nullptr;
    BOOL atDestruction = FALSE;
    const TestWindow window([&](HWND, UINT message) -> std::optional<LRESULT> {
        if (message == WM_DESTROY) atDestruction = IsWindow(button);
        return std::nullopt;
    });
    button = window.addControl("Button", "One", WS_VISIBLE, 1, {0, 0, 90, 30});
    DestroyWindow(window.handle);
    EXPECT_TRUE(atDestruction);
    EXPECT_FALSE(IsWindow(button));
}

TEST(WindowTest, EveryOperationRefusesAStaleHandle) {
    const TestWindow window;
    HWND const stale = window.handle;
    DestroyWindow(stale);
    PAINTSTRUCT paint{};
    RECT client{};
    const std::pair<const char*, std::function<bool()>> rows[] = {
        {"IsWindow", [&] { return IsWindow(stale) == FALSE; }},
        {"ShowWindow", [&] { return ShowWindow(stale, SW_SHOW) == FALSE; }},
        {"UpdateWindow", [&] { return UpdateWindow(stale) == FALSE; }},
        {"InvalidateRect", [&] { return InvalidateRect(stale, nullptr, TRUE) == FALSE; }},
        {"DestroyWindow", [&] { return DestroyWindow(stale) == FALSE; }},
        {"GetClientRect", [&] { return GetClientRect(stale, &client) == FALSE; }},
        {"SetWindowLongA", [&] { return SetWindowLongA(stale, GWL_STYLE, 0) == 0; }},
        {"SendMessageA", [&] { return SendMessageA(stale, CB_GETCOUNT, 0, 0) == 0; }},
        {"BeginPaint", [&] { return BeginPaint(stale, &paint) == nullptr; }},
        {"GetDC", [&] { return GetDC(stale) == nullptr; }},
        {"MessageBoxA", [&] { return MessageBoxA(stale, "Text", "Title", MB_OK) == 0; }},
        {"a control",
         [&] {
             return window.addControl("Button", "", 0, 1, {0, 0, 9, 9}) == nullptr;
         }},
        {"EndDialog", [&] { return EndDialog(stale, 1) == FALSE; }},
    };
    for (const auto& [what, refuses] : rows) {
        SCOPED_TRACE(what);
        SetLastError(NO_ERROR);
        EXPECT_TRUE(refuses());
        EXPECT_EQ(GetLastError(), DWORD{ERROR_INVALID_WINDOW_HANDLE});
    }
}

TEST(WindowTest, AClassIsRegisteredOnceAndFoundInAnyCase) {
    static int run = 0;  // a class stays for good
    const std::string number = std::to_string(++run);
    const std::string upper = "REGISTERED ONCE " + number;
    WNDCLASSEXA windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = DefWindowProcA;
    windowClass.lpszClassName = upper.c_str();
    EXPECT_NE(RegisterClassExA(&windowClass), 0);
    const std::string mixed = "Registered once " + number;
    windowClass.lpszClassName = mixed.c_str();
    EXPECT_EQ(RegisterClassExA(&windowClass), 0);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_CLASS_ALREADY_EXISTS});
    windowClass.lpszClassName = "Other";
    windowClass.cbSize = 4;
    EXPECT_EQ(RegisterClassExA(&windowClass), 0);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_INVALID_PARAMETER});

    const auto create = [](const char* name) {
        return CreateWindowA(name, "Title", WS_OVERLAPPEDWINDOW, 10, 10, 300, 200, nullptr, nullptr, nullptr, nullptr);
    };
    HWND const window = create(("registered once " + number).c_str());
    EXPECT_EQ(textOf(window), "Title");
    DestroyWindow(window);
    EXPECT_EQ(create("Other"), nullptr);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_CANNOT_FIND_WND_CLASS});
}

TEST(WindowTest, WhatWaitsIsDrawnByAnUpdateOrByAQuietLoop) {
    TestWindow window;
    window.show();
    EXPECT_EQ(sides(window.painted), sides(window.client()));
    window.takeLog();
    const RECT one{10, 20, 30, 40};
    const RECT other{25, 35, 60, 50};
    InvalidateRect(window.handle, &one, TRUE);
    InvalidateRect(window.handle, &other, FALSE);
    EXPECT_EQ(window.takeLog(), Log{});
    UpdateWindow(window.handle);
    EXPECT_EQ(window.takeLog(), Log{"paint"});
    EXPECT_EQ(sides(window.painted), (std::vector<int>{10, 20, 60, 50}));
    UpdateWindow(window.handle);
    runMessages();
    EXPECT_EQ(window.takeLog(), Log{}) << "nothing waits any more";

    const RECT beyond{-50, -50, 5, 5};
    InvalidateRect(window.handle, &beyond, TRUE);
    runMessages();
    EXPECT_EQ(window.takeLog(), Log{"paint"});
    EXPECT_EQ(sides(window.painted), (std::vector<int>{0, 0, 5, 5}));
}

TEST(WindowTest, AResizeDrawsAllOrOnlyWhatIsNew) {
    for (const UINT classStyle : {UINT{0}, UINT{CS_HREDRAW | CS_VREDRAW}}) {
        TestWindow window(0, classStyle);
        window.show();
        const RECT before = window.client();
        resizeWindow(window.handle, before.right + 40, before.bottom);
        runMessages();
        const int left = classStyle == 0 ? before.right : 0;
        EXPECT_EQ(sides(window.painted), (std::vector<int>{left, 0, before.right + 40, before.bottom}));
    }
}

TEST(WindowTest, AQuitIsHeardWheneverItWasPosted) {
    PostQuitMessage(-3);
    MSG message{};
    EXPECT_EQ(GetMessageA(&message, nullptr, 0, 0), FALSE);
    EXPECT_EQ(message.message, UINT{WM_QUIT});
    EXPECT_EQ(static_cast<int>(message.wParam), -3);
    int exitCode = 0;
    later([] { PostQuitMessage(9); });
    EXPECT_TRUE(runMessages(&exitCode));
    EXPECT_EQ(exitCode, 9);
    EXPECT_FALSE(runMessages()) << "a quit ends one loop";
}
