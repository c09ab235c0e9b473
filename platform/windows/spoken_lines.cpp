#include "platform/windows/spoken_lines.h"

#include <array>
#include <cstring>

#ifndef EVENT_OBJECT_LIVEREGIONCHANGED
#define EVENT_OBJECT_LIVEREGIONCHANGED 0x8019
#endif

namespace {

constexpr int lineId = -1;     // no control of the program has it
constexpr LONG_PTR drawn = 1;  // in the user data of a line

// Without a repaint of what lies below a line.
constexpr UINT silently = SWP_NOACTIVATE | SWP_NOREDRAW;

WNDPROC systemProcedure = nullptr;

// A static text that draws nothing, because the program has drawn its words already.
LRESULT CALLBACK lineProcedure(HWND line, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT:
            ValidateRect(line, nullptr);
            return 0;
        case WM_SETTEXT:  // the system's would draw the new text at once
            return DefWindowProcA(line, message, wParam, lParam);
        default:
            return CallWindowProcA(systemProcedure, line, message, wParam, lParam);
    }
}

RECT placeIn(HWND window, HWND child) {
    RECT place{};
    GetWindowRect(child, &place);
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

bool isLine(HWND child) {
    return GetWindowLongA(child, GWL_ID) == lineId;
}

template <typename Action>
void forEachLine(HWND window, Action action) {
    HWND next = nullptr;
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = next) {
        next = GetWindow(child, GW_HWNDNEXT);
        if (isLine(child)) action(child);
    }
}

HWND findLine(HWND window, const RECT& place) {
    HWND found = nullptr;
    forEachLine(window, [&](HWND line) {
        const RECT other = placeIn(window, line);
        if (other.left == place.left && other.top == place.top) found = line;
    });
    return found;
}

// Puts a new line before the first control that isn't above it, so that it is read in that order.
void putInOrder(HWND window, HWND line, const RECT& place) {
    HWND before = HWND_TOP;
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        if (!isLine(child) && placeIn(window, child).bottom > place.top) break;
        if (child != line) before = child;
    }
    SetWindowPos(line, before, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | silently);
}

HWND createLine(HWND window, const RECT& place) {
    HWND const line =
        CreateWindowExA(WS_EX_NOPARENTNOTIFY, "Static", "", WS_CHILD | WS_VISIBLE | SS_NOPREFIX, place.left, place.top,
                        0, 0, window, reinterpret_cast<HMENU>(INT_PTR{lineId}), nullptr, nullptr);
    if (line == nullptr) return nullptr;
    const LONG_PTR before = SetWindowLongPtrA(line, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(lineProcedure));
    systemProcedure = reinterpret_cast<WNDPROC>(before);
    putInOrder(window, line, place);
    return line;
}

// The second kind of event asks a screen reader to say the new words at once. Not every one does; the line is there to
// be read when the user asks for it.
void announce(HWND line) {
    NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, line, OBJID_CLIENT, CHILDID_SELF);
    NotifyWinEvent(EVENT_OBJECT_LIVEREGIONCHANGED, line, OBJID_CLIENT, CHILDID_SELF);
}

}  // namespace

void beginLines(HWND window) {
    forEachLine(window, [](HWND line) { SetWindowLongPtrA(line, GWLP_USERDATA, 0); });
}

void endLines(HWND window) {
    forEachLine(window, [](HWND line) {
        if (GetWindowLongPtrA(line, GWLP_USERDATA) == drawn) return;
        SetWindowPos(line, nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_HIDEWINDOW | silently);
        DestroyWindow(line);
    });
}

void addLine(HWND window, HDC dc, LPCSTR text, int length, const RECT& place, UINT format) {
    // A label ends with a blank, which is not part of the control's name.
    std::size_t size = length < 0 ? std::strlen(text) : static_cast<std::size_t>(length);
    while (size > 0 && text[size - 1] == ' ') {
        --size;
    }
    std::array<char, 256> words{};
    if (size == 0 || size >= words.size()) return;
    std::memcpy(words.data(), text, size);

    RECT taken = place;
    if ((format & DT_CENTER) == 0) DrawTextA(dc, words.data(), -1, &taken, format | DT_CALCRECT);
    IntersectRect(&taken, &taken, &place);
    HWND line = findLine(window, place);
    if (line == nullptr) line = createLine(window, place);
    if (line == nullptr) return;
    SetWindowLongPtrA(line, GWLP_USERDATA, drawn);
    std::array<char, 256> before{};
    GetWindowTextA(line, before.data(), before.size());
    if (std::strcmp(before.data(), words.data()) == 0) return;
    SetWindowPos(line, nullptr, 0, 0, taken.right - taken.left, taken.bottom - taken.top,
                 SWP_NOMOVE | SWP_NOZORDER | silently);
    SetWindowTextA(line, words.data());
    announce(line);
}
