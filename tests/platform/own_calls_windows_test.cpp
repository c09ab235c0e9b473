// What the program's own versions of Windows' calls do beyond the originals.
#include <windows.h>

#include <sddl.h>

#include "tests/platform/window_test.h"

namespace {

class OwnCallsWindowsTest : public WindowTest {
 protected:
    // Presses the last key while the others are held.
    static void press(std::initializer_list<BYTE> keys) {
        for (const BYTE key : keys)
            keybd_event(key, 0, 0, 0);
        for (const BYTE key : keys)
            keybd_event(key, 0, KEYEVENTF_KEYUP, 0);
        runMessages();
    }

    // Notes the kind of an event, and the text of the line that it is about.
    static void CALLBACK hear(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG, DWORD, DWORD) {
        if (object == OBJID_CLIENT && GetDlgCtrlID(window) == -1)
            heard_.push_back(std::to_string(event) + textOf(window));
    }

    // Puts a new window where Windows may place one of many.
    static LRESULT CALLBACK placeAtTheEnd(int, WPARAM, LPARAM sent) {
        const auto& to = *reinterpret_cast<CWPSTRUCT*>(sent);
        if (to.message == WM_CREATE) SetWindowPos(to.hwnd, nullptr, 600, 600, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        return 0;
    }

    void takeKeysAway() const {
        SetFocus(nullptr);
        SetFocus(window_);
    }

    static inline Log heard_;
};

TEST_F(OwnCallsWindowsTest, AKeyThatRefusesAllAccessIsRead) {
    constexpr const char* path = "Software\\Tidewright's test";
    HKEY key = nullptr;
    ASSERT_EQ(RegCreateKeyExA(HKEY_LOCAL_MACHINE, path, 0, nullptr, 0, KEY_ALL_ACCESS | KEY_WOW64_32KEY, nullptr, &key,
                              nullptr),
              ERROR_SUCCESS);
    PSECURITY_DESCRIPTOR readOnly = nullptr;
    ConvertStringSecurityDescriptorToSecurityDescriptorA("D:P(A;;KR;;;WD)", SDDL_REVISION_1, &readOnly, nullptr);
    EXPECT_EQ(RegSetKeySecurity(key, DACL_SECURITY_INFORMATION, readOnly), ERROR_SUCCESS);
    RegCloseKey(key);
    EXPECT_EQ(RegOpenKeyExA(HKEY_LOCAL_MACHINE, path, 0, KEY_ALL_ACCESS, &key), ERROR_SUCCESS);
    EXPECT_EQ(RegSetValueExA(key, "x", 0, REG_SZ, nullptr, 0), ERROR_ACCESS_DENIED);
    RegCloseKey(key);
}

TEST_F(OwnCallsWindowsTest, KeysReachEveryControlAndTheWheelOnlyTheOneThatHasThem) {
    HWND const disabled = addButton(1), box = addCombo({"a", "b"}), hidden = addButton(2);
    HWND const button = addButton(3), last = addButton(4);
    EnableWindow(disabled, FALSE);
    ShowWindow(hidden, SW_HIDE);
    takeKeysAway();
    for (HWND const next : {box, button, last, box}) {
        EXPECT_EQ(GetFocus(), next);
        press({VK_TAB});
    }
    for (HWND const next : {button, box, last}) {
        EXPECT_EQ(GetFocus(), next);
        press({VK_SHIFT, VK_TAB});
    }
    takeLog();
    press({VK_RETURN});  // held, it would also answer the box that the press opens
    press({VK_SPACE});
    EXPECT_EQ(takeLog(), Log{"command 3 0"});
    takeKeysAway();
    EXPECT_EQ(GetFocus(), button) << "it had them last";
    for (const int picked : {CB_ERR, 0}) {
        PostMessageA(box, WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
        runMessages();
        EXPECT_EQ(SendMessageA(box, CB_GETCURSEL, 0, 0), picked);
        SetFocus(box);
    }
    takeLog();
    press({VK_MENU, VK_F4});
    EXPECT_EQ(takeLog(), (Log{"close", "destroy"}));
}

TEST_F(OwnCallsWindowsTest, ADrawnLineIsAStaticTextBeforeTheControlBehindItAndSaysWhatChanges) {
    heard_.clear();
    HWND const box = addCombo({"a"}), button = addButton(1);
    pickEntry(box, 0);
    // Draws the lines, and returns all texts in the order in which screen readers find them.
    const auto textsWith = [this](const char* stage) {
        paint_ = [stage](HDC dc) {
            RECT label{10, 10, 400, 30}, line{10, 160, 400, 190};
            DrawTextA(dc, stage, -1, &line, 0);
            DrawTextA(dc, "Pick: ", -1, &label, 0);
        };
        InvalidateRect(window_, nullptr, TRUE);
        UpdateWindow(window_);
        runMessages();
        std::string found;
        for (HWND child = GetWindow(window_, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
            found += textOf(child) + "|";
        return found;
    };
    EXPECT_EQ(textsWith("Stage: Q&A"), "Pick:|a|Stage: Q&A|One|");
    HWND const label = GetWindow(window_, GW_CHILD);
    EXPECT_EQ(SendMessageA(label, WM_GETDLGCODE, 0, 0), DLGC_STATIC);
    EXPECT_LT(placeOf(label).right, 160) << "as wide as its words";
    constexpr DWORD nameChange = 0x800C, liveRegionChanged = 0x8019;
    SetWinEventHook(nameChange, liveRegionChanged, nullptr, hear, GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
    EXPECT_EQ(textsWith("Stage: teenager"), "Pick:|a|Stage: teenager|One|");
    EXPECT_EQ(heard_, (Log{"32780Stage: teenager", "32793Stage: teenager"}));
    press({VK_TAB});
    EXPECT_EQ(GetFocus(), button) << "a text takes no keys";
    EXPECT_EQ(textsWith(""), "Pick:|a|One|");
}

TEST_F(OwnCallsWindowsTest, WindowsGrowWithTheFontOfMessagesUntilTheScreenIsFull) {
    NONCLIENTMETRICSA usual{};
    usual.cbSize = sizeof usual;
    SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof usual, &usual, 0);
    const char* const own = usual.lfMessageFont.lfFaceName;
    for (const auto& [face, height, smallest] :
         {std::tuple(own, -11L, 1.0), {"DejaVu Sans Mono", -17L, 1.3}, {own, -60L, 1.9}}) {
        SCOPED_TRACE(testing::Message() << face << height);
        NONCLIENTMETRICSA larger = usual;
        lstrcpyA(larger.lfMessageFont.lfFaceName, face);
        larger.lfMessageFont.lfHeight = height;
        SystemParametersInfoA(SPI_SETNONCLIENTMETRICS, sizeof larger, &larger, 0);
        DestroyWindow(window_);
        HHOOK const hook = SetWindowsHookExA(WH_CALLWNDPROC, placeAtTheEnd, nullptr, GetCurrentThreadId());
        window_ = CreateWindowA("WindowTest", "", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CW_USEDEFAULT, CW_USEDEFAULT,
                                CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, nullptr, nullptr);
        UnhookWindowsHookEx(hook);
        RECT whole{}, client{};
        GetWindowRect(window_, &whole);
        EXPECT_TRUE(whole.right <= GetSystemMetrics(SM_CXSCREEN) && whole.bottom <= GetSystemMetrics(SM_CYSCREEN));
        HWND const control = addButton(1);
        LOGFONTA font{};
        GetObjectA(reinterpret_cast<HFONT>(SendMessageA(control, WM_GETFONT, 0, 0)), sizeof font, &font);
        EXPECT_STREQ(font.lfFaceName, face);
        const RECT place = placeOf(control);
        const double unit = place.bottom / 330.0;
        EXPECT_GE(unit, smallest);
        EXPECT_NEAR(place.left, 10 * unit, 1);
        EXPECT_NEAR(place.right, 110 * unit, 1);
        EXPECT_NEAR(place.top, 300 * unit, 1);
        PAINTSTRUCT painting{};
        HDC const dc = BeginPaint(window_, &painting);
        SIZE label{}, button{};
        GetTextExtentPoint32A(dc, "Pick a Neighborhood: ", 21, &label);
        GetTextExtentPoint32A(dc, "Teen to Adult", 13, &button);
        EXPECT_TRUE(label.cx <= 150 * unit && label.cy <= 20 * unit) << "it has the room that it has at the usual size";
        EXPECT_LE(button.cx + 8, 100 * unit) << "and so has a button, within its edges";
        EXPECT_GT(label.cx, 100 * unit) << "and needs it";
        RECT line{200, 100, 400, 120};
        EXPECT_NEAR(DrawTextA(dc, "x", -1, &line, 0), label.cy / unit + 0.5, 0.52) << "whole units, rounded up";
        MoveWindow(window_, 0, 0, 10, 10, TRUE);
        GetClientRect(window_, &client);
        EXPECT_TRUE(client.right >= 480 && client.bottom >= 350) << "the controls aren't cut";
        EXPECT_NEAR(client.right * unit, pictureOf(window_).width, 2);

        paint_ = [](HDC target) {
            HDC const black = CreateCompatibleDC(target);
            SelectObject(black, CreateCompatibleBitmap(target, 20, 20));
            BitBlt(target, 40, 40, 20, 20, black, 0, 0, SRCCOPY);
            RECT text{200, 100, 400, 120};
            DrawTextA(target, "x", -1, &text, 0);
        };
        const RECT part{40, 40, 60, 60};
        InvalidateRect(window_, &part, TRUE);
        UpdateWindow(window_);
        for (const std::size_t edge : {0U, 1U, 2U, 3U})
            EXPECT_NEAR(painted_.at(edge), edge < 2 ? 40 : 60, 1);
        EXPECT_NEAR(placeOf(GetWindow(window_, GW_CHILD)).left, 200 * unit, 1);
        for (const int x : {38, 41, 59, 62})
            EXPECT_EQ(pictureOf(window_).at(static_cast<int>(x * unit), static_cast<int>(50 * unit)) == 0,
                      40 < x && x < 60);
    }
    SystemParametersInfoA(SPI_SETNONCLIENTMETRICS, sizeof usual, &usual, 0);
}

TEST_F(OwnCallsWindowsTest, AListIsAsWideAsItsLongestEntryAndStaysOnTheScreen) {
    HWND const box = addCombo({"a"});
    for (const auto& [letters, least] : {std::pair(9U, 200), {40U, 400}, {99U, 800}}) {
        for (int entries = 0; entries < 50; ++entries)
            SendMessageA(box, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(std::string(letters, 'W').c_str()));
        SendMessageA(box, CB_SHOWDROPDOWN, TRUE, 0);
        COMBOBOXINFO parts{};
        parts.cbSize = sizeof parts;
        GetComboBoxInfo(box, &parts);
        RECT list{};
        GetWindowRect(parts.hwndList, &list);
        EXPECT_GE(list.right - list.left, least);
        EXPECT_LE(list.right, GetSystemMetrics(SM_CXSCREEN));
        EXPECT_LE(list.bottom - list.top, 30 * SendMessageA(box, CB_GETITEMHEIGHT, 0, 0) + 4);
        PostMessageA(parts.hwndList, WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
        runMessages();
        EXPECT_GT(SendMessageA(parts.hwndList, LB_GETTOPINDEX, 0, 0), 0) << "the wheel scrolls it";
        SendMessageA(box, CB_SHOWDROPDOWN, FALSE, 0);
    }
}

}  // namespace
