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
    return FindWindowA("#32770", nullptr);
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
    mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    MSG message{};
    while (PeekMessageA(&message, nullptr, WM_MOUSEFIRST, WM_MOUSELAST, PM_REMOVE))
        DispatchMessageA(&message);
}

// The last of the keys while the others are held.
void press(HWND window, const std::vector<int>& keys) {
    SetForegroundWindow(window);
    for (const int key : keys)
        keybd_event(static_cast<BYTE>(key), 0, 0, 0);
    for (const int key : keys)
        keybd_event(static_cast<BYTE>(key), 0, KEYEVENTF_KEYUP, 0);
}

void CALLBACK workOnTimer(HWND, UINT, UINT_PTR, DWORD) {
    HWND const box = openBox();
    if (box != nullptr && !IsWindowVisible(box)) return;  // its loop shows it once it has nothing else to do
    if (workWaits(box != nullptr)) workWhenQuiet(box != nullptr);
}

// A picture to draw on, white at first. What it takes goes with the test.
class Canvas {
 public:
    Canvas(int width, int height) : width_(width), height_(height) {
        BITMAPINFO format{};
        format.bmiHeader = {sizeof format.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        SelectObject(dc, CreateDIBSection(nullptr, &format, DIB_RGB_COLORS, &bits_, nullptr, 0));
        PatBlt(dc, 0, 0, width, height, WHITENESS);
    }
    Picture picture() const {
        GdiFlush();
        const auto* const first = static_cast<const std::uint32_t*>(bits_);
        Picture picture{width_, height_, {first, first + static_cast<std::ptrdiff_t>(width_) * height_}};
        for (std::uint32_t& pixel : picture.pixels)
            pixel &= 0xFFFFFF;
        return picture;
    }

    HDC const dc = CreateCompatibleDC(nullptr);

 private:
    int width_, height_;
    void* bits_ = nullptr;
};

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

void lookAtBox(Box& seen) {
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
    press(openBox(), {VK_ESCAPE});
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
    const int key = VkKeyScanA(character) & 0xFF;
    if (hold == Hold::nothing) return press(window, {key});
    if (hold == Hold::alt) return press(window, {VK_MENU, key});
    press(window, {VK_MENU, VK_SHIFT, key});
}

bool isEnabled(HWND window) {
    return IsWindowEnabled(window) != FALSE;
}

std::string textOf(HWND window) {
    if (!IsWindowVisible(window)) return "";
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
    const Canvas measure(1, 1);
    const LRESULT font = SendMessageA(GetWindow(window, GW_CHILD), WM_GETFONT, 0, 0);
    SelectObject(measure.dc, reinterpret_cast<HFONT>(font));
    RECT place{};
    DrawTextA(measure.dc, text.c_str(), -1, &place, DT_CALCRECT);
    const Canvas canvas(place.right, place.bottom);
    SelectObject(canvas.dc, reinterpret_cast<HFONT>(font));
    DrawTextA(canvas.dc, text.c_str(), -1, &place, 0);
    const Picture whole = pictureOf(window), part = canvas.picture();
    for (int top = 0; top + part.height <= whole.height; ++top)
        for (int left = 0; left + part.width <= whole.width; ++left)
            if (standsAt(part, whole, left, top)) return true;
    return false;
}

Picture pictureOf(HWND window) {
    UpdateWindow(window);
    RECT client{};
    GetClientRect(window, &client);
    const Canvas canvas(client.right, client.bottom);
    HDC const dc = GetDC(window);
    BitBlt(canvas.dc, 0, 0, client.right, client.bottom, dc, 0, 0, SRCCOPY);
    ReleaseDC(window, dc);
    return canvas.picture();
}

std::uint32_t screenPixel(HWND window, int x, int y) {
    POINT place{x, y};
    ClientToScreen(window, &place);
    HDC const screen = GetDC(nullptr);
    const COLORREF color = GetPixel(screen, place.x, place.y);
    ReleaseDC(nullptr, screen);
    return static_cast<std::uint32_t>(RGB(GetBValue(color), GetGValue(color), GetRValue(color)));
}
