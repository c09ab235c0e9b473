// Tests of a window with a class of its own that logs the messages it receives.
#ifndef TESTS_PLATFORM_WINDOW_TEST_H
#define TESTS_PLATFORM_WINDOW_TEST_H

#include <gtest/gtest.h>

#include <functional>

#include "resources/ids.h"
#include "shell/window_class.h"
#include "tests/support/user.h"

using Log = std::vector<std::string>;

class WindowTest : public testing::Test {
 protected:
    // Shows it, with the program's menu.
    WindowTest() {
        registerWindowClass("WindowTest", procedure, IDC_ARROW, MAKEINTRESOURCEA(IDR_MAIN_MENU));
        current_ = this;
        window_ = CreateWindowA("WindowTest", "A test's window", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, CW_USEDEFAULT,
                                CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, nullptr, nullptr);
        UpdateWindow(window_);  // nothing waits in a hidden window
        EXPECT_EQ(ShowWindow(window_, SW_SHOWNORMAL), FALSE) << "it was hidden";
        UpdateWindow(window_);
    }
    ~WindowTest() override { DestroyWindow(window_); }

    HWND addButton(int id) const {
        return CreateWindowA("Button", "One", WS_CHILD | WS_VISIBLE, 10, 300, 100, 30, window_,
                             reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    }

    // Its id is 7.
    HWND addCombo(std::initializer_list<const char*> entries) const {
        HWND const combo = CreateWindowA("comboBOX", "", WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, 160, 10, 200, 200,
                                         window_, reinterpret_cast<HMENU>(INT_PTR{7}), nullptr, nullptr);
        for (const char* const entry : entries)
            SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry));
        return combo;
    }

    // What came since the last call: "create", "paint", "command" with id and code, "close", "destroy".
    Log takeLog() { return std::exchange(log_, {}); }

    HWND window_ = nullptr;
    std::function<void(HDC)> paint_;  // within WM_PAINT
    std::vector<int> painted_;        // left, top, right and bottom of what waited then

 private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        current_->note(message, wParam);
        if (message != WM_PAINT) return DefWindowProcA(window, message, wParam, lParam);
        PAINTSTRUCT paintStruct{};
        HDC const dc = BeginPaint(window, &paintStruct);
        const RECT& waited = paintStruct.rcPaint;
        current_->painted_ = {waited.left, waited.top, waited.right, waited.bottom};
        if (current_->paint_) current_->paint_(dc);
        EndPaint(window, &paintStruct);
        return 0;
    }

    void note(UINT message, WPARAM wParam) {
        if (message == WM_CREATE) log_.emplace_back("create");
        if (message == WM_PAINT) log_.emplace_back("paint");
        if (message == WM_CLOSE) log_.emplace_back("close");
        if (message == WM_DESTROY) log_.emplace_back("destroy");
        // Windows sends more notifications; the program uses none but the pick of an entry.
        if (message == WM_COMMAND && HIWORD(wParam) <= CBN_SELCHANGE)
            log_.push_back("command " + std::to_string(LOWORD(wParam)) + " " + std::to_string(HIWORD(wParam)));
    }

    static inline WindowTest* current_ = nullptr;
    Log log_;
};

#endif
