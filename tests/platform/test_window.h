// A window of a class of its own that notes what it receives.
#ifndef TESTS_PLATFORM_TEST_WINDOW_H
#define TESTS_PLATFORM_TEST_WINDOW_H

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/win32.h"

using Log = std::vector<std::string>;

inline std::vector<int> sides(const RECT& rectangle) {
    return {rectangle.left, rectangle.top, rectangle.right, rectangle.bottom};
}

class TestWindow {
 public:
    // The answer to a message; without a value DefWindowProcA gives it.
    using Answer = std::function<std::optional<LRESULT>(HWND, UINT)>;

    // Hidden. `menu` is an id of the resources, 0 for none.
    explicit TestWindow(WORD menu = 0, UINT classStyle = CS_HREDRAW | CS_VREDRAW, Answer given = {})
        : answer(std::move(given)) {
        create(WS_OVERLAPPEDWINDOW, {CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT}, menu, classStyle);
    }
    explicit TestWindow(Answer given) : TestWindow(0, CS_HREDRAW | CS_VREDRAW, std::move(given)) {}

    // Without a frame; left, top, width and height.
    explicit TestWindow(const RECT& place) { create(WS_DLGFRAME, place, 0, 0); }

    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;
    ~TestWindow() {
        answer = {};
        DestroyWindow(handle);
        current() = outer_;
    }

    void show() {
        ShowWindow(handle, SW_SHOWNORMAL);
        UpdateWindow(handle);
    }

    RECT client() const {
        RECT rectangle{};
        GetClientRect(handle, &rectangle);
        return rectangle;
    }

    // Left, top, width and height.
    HWND addControl(const char* className, const char* text, DWORD style, int id, const RECT& place) const {
        return CreateWindowA(className, text, WS_CHILD | style, place.left, place.top, place.right, place.bottom,
                             handle, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    }

    // What came since the last call: "create", "paint", "command" with id and code, "close", "destroy".
    Log takeLog() { return std::exchange(log_, {}); }

    HWND handle = nullptr;  // null if it wasn't created
    Answer answer;
    std::function<void(HDC)> paint;  // within WM_PAINT
    RECT painted{};                  // what waited then
    LPARAM sender = 0;               // of the last command

 private:
    static TestWindow*& current() {
        static TestWindow* window = nullptr;
        return window;
    }

    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        TestWindow* const self = current();
        if (self == nullptr || (self->handle != nullptr && self->handle != window))
            return DefWindowProcA(window, message, wParam, lParam);
        self->note(message, wParam, lParam);
        const auto given = self->answer ? self->answer(window, message) : std::nullopt;
        if (given.has_value()) return *given;
        if (message != WM_PAINT) return DefWindowProcA(window, message, wParam, lParam);
        PAINTSTRUCT paintStruct{};
        HDC const dc = BeginPaint(window, &paintStruct);
        self->painted = paintStruct.rcPaint;
        if (self->paint) self->paint(dc);
        EndPaint(window, &paintStruct);
        return 0;
    }

    void note(UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_CREATE) log_.emplace_back("create");
        if (message == WM_PAINT) log_.emplace_back("paint");
        if (message == WM_CLOSE) log_.emplace_back("close");
        if (message == WM_DESTROY) log_.emplace_back("destroy");
        if (message != WM_COMMAND) return;
        log_.push_back("command " + std::to_string(LOWORD(wParam)) + " " + std::to_string(HIWORD(wParam)));
        sender = lParam;
    }

    void create(DWORD style, const RECT& place, WORD menu, UINT classStyle) {
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
        handle = CreateWindowExA(0, name.c_str(), "A test's window", style, place.left, place.top, place.right,
                                 place.bottom, nullptr, nullptr, windowClass.hInstance, nullptr);
    }

    TestWindow* outer_ = current();
    Log log_;
};

#endif
