// A window with a class of its own that logs the messages it receives.
#ifndef TESTS_PLATFORM_TEST_WINDOW_H
#define TESTS_PLATFORM_TEST_WINDOW_H

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/win32.h"
#include "resources/ids.h"
#include "shell/window_class.h"

using Log = std::vector<std::string>;

class TestWindow {
 public:
    // Creates it hidden, with the program's menu. Only one may exist at a time.
    TestWindow() {
        registerWindowClass("TestWindow", procedure, IDC_ARROW, MAKEINTRESOURCEA(IDR_MAIN_MENU));
        current_ = this;
        handle = CreateWindowA("TestWindow", "A test's window", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, CW_USEDEFAULT,
                               CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, nullptr, nullptr);
    }
    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;
    ~TestWindow() { DestroyWindow(handle); }

    void show() {
        ShowWindow(handle, SW_SHOWNORMAL);
        UpdateWindow(handle);
    }

    // Left, top, width and height.
    HWND addControl(const char* className, const char* text, DWORD style, int id, const RECT& place) const {
        return CreateWindowA(className, text, WS_CHILD | style, place.left, place.top, place.right, place.bottom,
                             handle, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    }

    HWND addCombo(std::initializer_list<const char*> entries) const {
        HWND const combo = addControl("comboBOX", "", CBS_DROPDOWNLIST | WS_VISIBLE, 7, {160, 10, 200, 200});
        for (const char* const entry : entries)
            SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry));
        return combo;
    }

    // What came since the last call: "create", "paint", "command" with id and code, "close", "destroy".
    Log takeLog() { return std::exchange(log_, {}); }

    HWND handle = nullptr;
    std::function<void(HDC)> paint;  // within WM_PAINT
    std::vector<int> painted;        // left, top, right and bottom of what waited then

 private:
    static inline TestWindow* current_ = nullptr;

    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        current_->note(message, wParam);
        if (message != WM_PAINT) return DefWindowProcA(window, message, wParam, lParam);
        PAINTSTRUCT paintStruct{};
        HDC const dc = BeginPaint(window, &paintStruct);
        const RECT& waited = paintStruct.rcPaint;
        current_->painted = {waited.left, waited.top, waited.right, waited.bottom};
        if (current_->paint) current_->paint(dc);
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

    Log log_;
};

#endif
