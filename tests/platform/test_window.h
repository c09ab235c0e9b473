// A window of a class of its own that notes the messages it receives.
#ifndef TESTS_PLATFORM_TEST_WINDOW_H
#define TESTS_PLATFORM_TEST_WINDOW_H

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/win32.h"

using Log = std::vector<std::string>;

// The answer to a message; without a value DefWindowProcA gives it.
using Handler = std::function<std::optional<LRESULT>(HWND, UINT, WPARAM, LPARAM)>;

class TestWindow {
 public:
    // Hidden. `menu` is an id of the resources, 0 for none.
    explicit TestWindow(Handler givenHandler = {}, WORD menu = 0, UINT classStyle = CS_HREDRAW | CS_VREDRAW)
        : handler(std::move(givenHandler)) {
        create(WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, CW_USEDEFAULT, menu, classStyle);
    }

    // At a place of the screen, without a frame.
    TestWindow(const RECT& place, Handler givenHandler) : handler(std::move(givenHandler)) {
        create(WS_DLGFRAME, place.left, place.top, 0, 0, place.right - place.left, place.bottom - place.top);
    }

    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;

    ~TestWindow() {
        handler = {};
        DestroyWindow(handle);
        current() = nullptr;
    }

    void show() {
        ShowWindow(handle, SW_SHOWNORMAL);
        UpdateWindow(handle);
    }

    HWND addControl(const char* className, const char* text, DWORD style, int id, const RECT& place) const {
        return CreateWindowA(className, text, WS_CHILD | style, place.left, place.top, place.right - place.left,
                             place.bottom - place.top, handle, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                             nullptr, nullptr);
    }

    // What came since the last call: "create", "paint", "command" with id and code, "close", "destroy".
    Log takeLog() { return std::exchange(log_, {}); }

    HWND handle = nullptr;  // null if it wasn't created
    Handler handler;

 private:
    static TestWindow*& current() {
        static TestWindow* window = nullptr;
        return window;
    }

    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        TestWindow* const self = current();
        if (self == nullptr) return DefWindowProcA(window, message, wParam, lParam);
        self->note(message, wParam);
        const auto answer = self->handler ? self->handler(window, message, wParam, lParam) : std::optional<LRESULT>();
        return answer.has_value() ? *answer : DefWindowProcA(window, message, wParam, lParam);
    }

    void note(UINT message, WPARAM wParam) {
        if (message == WM_CREATE) log_.push_back("create");
        if (message == WM_PAINT) log_.push_back("paint");
        if (message == WM_CLOSE) log_.push_back("close");
        if (message == WM_DESTROY) log_.push_back("destroy");
        if (message == WM_COMMAND)
            log_.push_back("command " + std::to_string(LOWORD(wParam)) + " " + std::to_string(HIWORD(wParam)));
    }

    void create(DWORD style, int x, int y, WORD menu, UINT classStyle, int width = CW_USEDEFAULT,
                int height = CW_USEDEFAULT) {
        static int number = 0;
        const std::string name = "TestWindow" + std::to_string(++number);
        WNDCLASSEXA windowClass{};
        windowClass.cbSize = sizeof windowClass;
        windowClass.style = classStyle;
        windowClass.lpfnWndProc = procedure;
        windowClass.hInstance = GetModuleHandleA(nullptr);
        windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
        windowClass.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_WINDOW + 1));
        windowClass.lpszMenuName = menu == 0 ? nullptr : MAKEINTRESOURCEA(menu);
        windowClass.lpszClassName = name.c_str();
        RegisterClassExA(&windowClass);
        current() = this;
        handle = CreateWindowExA(0, name.c_str(), "A test's window", style, x, y, width, height, nullptr, nullptr,
                                 windowClass.hInstance, nullptr);
    }

    Log log_;
};

#endif
