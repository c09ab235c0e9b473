// A user of Windows' own windows: mouse and keys go in where a mouse's and a keyboard's do.
#include "tests/support/user.h"

#include <algorithm>

// Windows' own, which counts pixels, as mouse and pictures do.
#undef GetClientRect

namespace {

std::string withoutMarks(std::string text) {
    std::erase(text, '&');
    return text;
}

// The message box or dialog that is open, or null.
HWND openBox() {
    return FindWindowA("#32770", nullptr);
}

// Its children of a class, from left to right and from top to bottom.
std::vector<HWND> childrenOf(HWND box, const char* className) {
    std::vector<HWND> children;
    while (HWND const child = FindWindowExA(box, children.empty() ? nullptr : children.back(), className, nullptr))
        children.push_back(child);
    std::ranges::sort(children, {}, [](HWND child) { return std::pair(placeOf(child).top, placeOf(child).left); });
    return children;
}

// Clicks at a point of the window's client area, as the mouse does in a window that takes clicks.
void clickAt(HWND window, LONG x, LONG y) {
    const HWND root = GetAncestor(window, GA_ROOT);
    if (!IsWindowVisible(window) || !IsWindowEnabled(window) || !IsWindowEnabled(root)) return;
    SendMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    SendMessageA(window, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

// The last of the keys while the others are held.
void press(HWND window, const std::vector<int>& keys) {
    SetForegroundWindow(window);
    for (const int key : keys)
        keybd_event(static_cast<BYTE>(key), 0, 0, 0);
    for (const int key : keys)
        keybd_event(static_cast<BYTE>(key), 0, KEYEVENTF_KEYUP, 0);
}

// No lambda: 32-bit Windows has a calling convention of its own for these.
void CALLBACK onTimer(HWND, UINT, UINT_PTR, DWORD) {
    HWND const box = openBox();
    if (box != nullptr && !IsWindowVisible(box)) return;  // its loop shows it once it has nothing else to do
    workWhenQuiet(box != nullptr);
}

}  // namespace

// Windows has a timer's message only for a loop that has no other.
void watchForQuiet() {
    static const UINT_PTR timer = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, onTimer);
    static_cast<void>(timer);
}

void lookAtBox(Box& seen) {
    seen.title = textOf(openBox());
    for (HWND const label : childrenOf(openBox(), "Static"))
        if ((GetWindowLongA(label, GWL_STYLE) & SS_TYPEMASK) != SS_ICON)
            seen.text += (seen.text.empty() ? "" : "\n") + textOf(label);
    for (HWND const button : childrenOf(openBox(), "Button"))
        seen.buttons.push_back(textOf(button));
}

void answerBox(int answer) {
    for (HWND const button : childrenOf(openBox(), "Button"))
        if (answer != answerByEscape && textOf(button) == (answer == IDOK ? "OK" : "Cancel"))
            return clickButton(button);
    press(openBox(), {VK_ESCAPE});
}

void clickButton(HWND button) {
    RECT client{};
    GetClientRect(button, &client);
    clickAt(button, client.right / 2, client.bottom / 2);
}

void pickEntry(HWND combo, int index) {
    SetFocus(combo);
    SendMessageA(combo, CB_SHOWDROPDOWN, TRUE, 0);
    COMBOBOXINFO parts{};
    parts.cbSize = sizeof parts;
    GetComboBoxInfo(combo, &parts);
    SendMessageA(parts.hwndList, LB_SETTOPINDEX, static_cast<WPARAM>(index), 0);
    RECT entry{};
    SendMessageA(parts.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&entry));
    clickAt(parts.hwndList, entry.left + 20, (entry.top + entry.bottom) / 2);
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

void chooseColors(std::uint32_t window, std::uint32_t letters) {
    constexpr int elements[] = {COLOR_WINDOW, COLOR_WINDOWTEXT};
    const COLORREF colors[] = {RGB(window >> 16, window >> 8, window), RGB(letters >> 16, letters >> 8, letters)};
    SetSysColors(2, elements, colors);
}

void pressKey(HWND window, char character, Hold hold) {
    const int key = VkKeyScanA(character) & 0xFF;
    press(window, hold == Hold::nothing ? std::vector{key} : std::vector<int>{VK_MENU, VK_SHIFT, key});
}

bool isEnabled(HWND window) {
    return IsWindowEnabled(window) != FALSE;
}

std::string textOf(HWND window) {
    char text[1000] = "";
    if (IsWindowVisible(window)) GetWindowTextA(window, text, sizeof text);
    const bool isButton = (SendMessageA(window, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) != 0;
    return isButton ? withoutMarks(text) : text;
}

std::string entryText(HWND combo, int index) {
    char text[1000] = "";
    SendMessageA(combo, CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text));
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

Picture pictureOf(HWND window) {
    UpdateWindow(window);
    RECT client{};
    GetClientRect(window, &client);
    const int width = client.right, height = client.bottom;
    HDC const dc = GetDC(window), copy = CreateCompatibleDC(dc);
    HBITMAP const bitmap = CreateCompatibleBitmap(dc, width, height);
    HGDIOBJ const before = SelectObject(copy, bitmap);
    BitBlt(copy, 0, 0, width, height, dc, 0, 0, SRCCOPY);
    SelectObject(copy, before);
    BITMAPINFO format{};
    format.bmiHeader = {sizeof format.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    Picture picture{width, height, std::vector<std::uint32_t>(static_cast<std::size_t>(width * height))};
    GetDIBits(copy, bitmap, 0, static_cast<UINT>(height), picture.pixels.data(), &format, DIB_RGB_COLORS);
    ReleaseDC(window, dc);
    for (std::uint32_t& pixel : picture.pixels)
        pixel &= 0xFFFFFF;
    return picture;
}
