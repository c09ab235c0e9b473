// A user of Windows' own windows: mouse and keys go in where a mouse's and a keyboard's do.
#include "tests/support/user.h"

#include <algorithm>

#include "tests/support/window_system.h"

namespace {

std::string withoutMarks(std::string text) {
    std::erase(text, '&');
    return text;
}

std::string windowText(HWND window) {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)) + 1, '\0');
    text.resize(static_cast<std::size_t>(GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

std::string classOf(HWND window) {
    char name[32] = "";
    GetClassNameA(window, name, sizeof name);
    return name;
}

// The message box or dialog that is open, or null.
HWND openBox() {
    HWND box = nullptr;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM found) -> BOOL {
            if (classOf(window) != "#32770") return TRUE;
            *reinterpret_cast<HWND*>(found) = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&box));
    return box;
}

// Its children of a class, from left to right and from top to bottom.
std::vector<HWND> childrenOf(HWND box, const char* className) {
    std::vector<HWND> children;
    for (HWND child = GetWindow(box, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
        if (classOf(child) == className) children.push_back(child);
    std::ranges::sort(children, {}, [](HWND child) { return std::pair(placeOf(child).top, placeOf(child).left); });
    return children;
}

// Clicks at a point of the window's client area, and lets the windows have the mouse's messages and no others.
void clickAt(HWND window, LONG x, LONG y) {
    POINT place{x, y};
    ClientToScreen(window, &place);
    SetCursorPos(place.x, place.y);
    INPUT steps[2]{};
    steps[0].type = steps[1].type = INPUT_MOUSE;
    steps[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
    steps[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
    SendInput(2, steps, sizeof *steps);
    MSG message{};
    while (PeekMessageA(&message, nullptr, WM_MOUSEFIRST, WM_MOUSELAST, PM_REMOVE))
        DispatchMessageA(&message);
}

void pressVirtualKey(WORD key, std::initializer_list<WORD> held = {}) {
    std::vector<WORD> keys(held);
    keys.push_back(key);
    std::vector<INPUT> steps;
    const auto add = [&](WORD code, DWORD flags) {
        INPUT step{};
        step.type = INPUT_KEYBOARD;
        step.ki.wVk = code;
        step.ki.dwFlags = flags;
        steps.push_back(step);
    };
    for (const WORD code : keys)
        add(code, 0);
    std::ranges::reverse(keys);
    for (const WORD code : keys)
        add(code, KEYEVENTF_KEYUP);
    SendInput(static_cast<UINT>(steps.size()), steps.data(), sizeof(INPUT));
}

void CALLBACK workOnTimer(HWND, UINT, UINT_PTR, DWORD) {
    HWND const box = openBox();
    if (box != nullptr && !IsWindowVisible(box)) return;  // its loop shows it once it has nothing else to do
    if (workWaits(box != nullptr)) workWhenQuiet(box != nullptr);
}

// The pixels that a function draws or that stand in a device context, from its left upper corner on.
Picture pixelsOf(HDC from, int width, int height) {
    BITMAPINFO format{};
    format.bmiHeader = {sizeof format.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    HBITMAP const bitmap = CreateDIBSection(nullptr, &format, DIB_RGB_COLORS, &bits, nullptr, 0);
    HDC const memory = CreateCompatibleDC(nullptr);
    SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, from, 0, 0, SRCCOPY);
    GdiFlush();
    const auto* const first = static_cast<const std::uint32_t*>(bits);
    Picture picture{width, height, {first, first + static_cast<std::ptrdiff_t>(width) * height}};
    for (std::uint32_t& pixel : picture.pixels)
        pixel &= 0xFFFFFF;
    DeleteDC(memory);
    DeleteObject(bitmap);
    return picture;
}

// The text as a window whose controls have this font draws it, in the window's colours.
Picture pictureOfText(const std::string& text, HFONT font) {
    HDC const screen = GetDC(nullptr);
    HDC const memory = CreateCompatibleDC(screen);
    HBITMAP const bitmap = CreateCompatibleBitmap(screen, 800, 100);
    SelectObject(memory, bitmap);
    SelectObject(memory, font);
    RECT place{0, 0, 800, 100};
    FillRect(memory, &place, GetSysColorBrush(COLOR_WINDOW));
    DrawTextA(memory, text.c_str(), -1, &place, DT_CALCRECT);
    DrawTextA(memory, text.c_str(), -1, &place, 0);
    const Picture picture = pixelsOf(memory, place.right, place.bottom);
    DeleteDC(memory);
    DeleteObject(bitmap);
    ReleaseDC(nullptr, screen);
    return picture;
}

bool standsAt(const Picture& part, const Picture& whole, int left, int top) {
    for (int y = 0; y < part.height; ++y)
        for (int x = 0; x < part.width; ++x)
            if (part.at(x, y) != whole.at(left + x, top + y)) return false;
    return true;
}

}  // namespace

// Windows has a timer's message only for a loop that has no other.
void watchForQuiet() {
    static const UINT_PTR timer = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, workOnTimer);
    static_cast<void>(timer);
}

void lookAtBox(AnsweredBox::Seen& seen) {
    seen.title = windowText(openBox());
    for (HWND const label : childrenOf(openBox(), "Static"))
        if ((GetWindowLongA(label, GWL_STYLE) & SS_TYPEMASK) != SS_ICON)
            seen.text += (seen.text.empty() ? "" : "\n") + windowText(label);
    for (HWND const button : childrenOf(openBox(), "Button"))
        seen.buttons.push_back(withoutMarks(windowText(button)));
}

void answerBox(int answer) {
    for (HWND const button : childrenOf(openBox(), "Button"))
        if (answer != answerByEscape && withoutMarks(windowText(button)) == (answer == IDOK ? "OK" : "Cancel"))
            return clickButton(button);
    SetForegroundWindow(openBox());
    pressVirtualKey(VK_ESCAPE);
}

void clickButton(HWND button) {
    RECT client{};
    GetClientRect(button, &client);
    clickAt(button, client.right / 2, client.bottom / 2);
}

void pickEntry(HWND combo, int index) {
    SetForegroundWindow(GetAncestor(combo, GA_ROOT));
    SetFocus(combo);
    SendMessageA(combo, CB_SHOWDROPDOWN, TRUE, 0);
    COMBOBOXINFO parts{};
    parts.cbSize = sizeof parts;
    GetComboBoxInfo(combo, &parts);
    SendMessageA(parts.hwndList, LB_SETTOPINDEX, static_cast<WPARAM>(index), 0);
    RECT entry{};
    SendMessageA(parts.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&entry));
    static LONG picks = 0;  // no two in one place, which would be a double click
    clickAt(parts.hwndList, entry.left + 20 + 10 * (++picks % 2), (entry.top + entry.bottom) / 2);
}

bool chooseMenu(HWND window, std::initializer_list<const char*> path) {
    HMENU menu = GetMenu(window);
    for (const char* const text : path) {
        int item = GetMenuItemCount(menu) - 1;
        for (; item >= 0; --item) {
            char label[100] = "";
            GetMenuStringA(menu, static_cast<UINT>(item), label, sizeof label, MF_BYPOSITION);
            const std::string shown = withoutMarks(label);
            if (shown.substr(0, shown.find('\t')) == text) break;
        }
        const UINT state = GetMenuState(menu, static_cast<UINT>(item), MF_BYPOSITION);
        if (item < 0 || (state & (MF_DISABLED | MF_GRAYED)) != 0) return false;
        const UINT command = GetMenuItemID(menu, item);
        menu = GetSubMenu(menu, item);
        if (menu == nullptr) PostMessageA(window, WM_COMMAND, command, 0);
    }
    return true;
}

void closeWindow(HWND window) {
    if (IsWindowEnabled(window)) PostMessageA(window, WM_SYSCOMMAND, SC_CLOSE, 0);
}

void pressKey(HWND window, char character, Hold hold) {
    SetForegroundWindow(window);
    const WORD key = static_cast<WORD>(VkKeyScanA(character) & 0xFF);
    if (hold == Hold::nothing) return pressVirtualKey(key);
    if (hold == Hold::alt) return pressVirtualKey(key, {VK_MENU});
    pressVirtualKey(key, {VK_MENU, VK_SHIFT});
}

bool isEnabled(HWND window) {
    return IsWindowEnabled(window) != FALSE;
}

std::string textOf(HWND window) {
    return classOf(window) == "Button" ? withoutMarks(windowText(window)) : windowText(window);
}

std::string entryText(HWND combo, int index) {
    std::string text(static_cast<std::size_t>(SendMessageA(combo, CB_GETLBTEXTLEN, static_cast<WPARAM>(index), 0)) + 1,
                     '\0');
    SendMessageA(combo, CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
    text.pop_back();
    return text;
}

RECT placeOf(HWND control) {
    RECT place{};
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

bool waitCursorShows() {
    return GetCursor() == LoadCursorA(nullptr, IDC_WAIT);
}

// Nothing but the picture of a text is left when it is drawn, so that is looked for.
bool showsText(HWND window, const std::string& text) {
    const auto font = reinterpret_cast<HFONT>(SendMessageA(GetWindow(window, GW_CHILD), WM_GETFONT, 0, 0));
    const Picture whole = pictureOf(window), part = pictureOfText(text, font);
    for (int top = 0; top + part.height <= whole.height; ++top)
        for (int left = 0; left + part.width <= whole.width; ++left)
            if (standsAt(part, whole, left, top)) return true;
    return false;
}

Picture pictureOf(HWND window) {
    UpdateWindow(window);
    RECT client{};
    GetClientRect(window, &client);
    HDC const dc = GetDC(window);
    Picture picture = pixelsOf(dc, client.right, client.bottom);
    ReleaseDC(window, dc);
    return picture;
}

std::uint32_t screenPixel(HWND window, int x, int y) {
    POINT place{x, y};
    ClientToScreen(window, &place);
    HDC const screen = GetDC(nullptr);
    const COLORREF color = GetPixel(screen, place.x, place.y);
    ReleaseDC(nullptr, screen);
    return static_cast<std::uint32_t>(RGB(GetBValue(color), GetGValue(color), GetRValue(color)));
}
