// What a user does to the program's windows and sees of them. Tests that keep to this header and to Win32's names run
// on every window system; each has an implementation of its own in a folder beside this file. Texts are Windows-1252.
#ifndef TESTS_SUPPORT_USER_H
#define TESTS_SUPPORT_USER_H

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "platform/win32.h"

// Real clicks and keys: a disabled or hidden control doesn't answer them.
void clickButton(HWND button);

// Opens the list and clicks the entry, also the one that is selected already.
void pickEntry(HWND combo, int index);

// Chooses the item at the end of `path`, texts as the user sees them, without the "&". False, and nothing chosen, if
// there is no such item or it is disabled. The command is posted: a message loop delivers it.
bool chooseMenu(HWND window, std::initializer_list<const char*> path);

// Asks the window to close, as its close button does. A message loop delivers it.
void closeWindow(HWND window);

// Changes the colors of all windows and their texts, 0xRRGGBB, in the settings of the desktop.
void chooseColors(std::uint32_t window, std::uint32_t letters);

enum class Hold { nothing, altShift };

// Presses and releases the key of a printable ASCII character while `window` has the focus.
void pressKey(HWND window, char character, Hold hold = Hold::nothing);

// Runs `action` once the program's message loop has nothing to do; several run in their order, one each time.
void later(std::function<void()> action);

// Runs a message loop until nothing waits in it, or until PostQuitMessage. Returns whether that was called, and gives
// its code.
bool runMessages(int* exitCode = nullptr);

// A message box or dialog that the user answers, once it has shown.
struct Box {
    int answer;
    std::function<void()> meanwhile;
    bool shown = false;
    std::string title = {};
    std::string text = {};                  // of a dialog: its lines, with a line break between them
    std::vector<std::string> buttons = {};  // without the "&"
};
using AnsweredBox = std::shared_ptr<const Box>;

constexpr int answerByEscape = -1;

// Queues the answer to the next box that opens: IDOK and IDCANCEL click that button, `answerByEscape` presses the key.
// `meanwhile` runs while the box is open, before the answer. A box without that button is left by Escape too, so that
// a test fails instead of waiting. Several are used up in their order; one that wasn't used by the end of its
// AnsweredBox's life is dropped.
[[nodiscard]] AnsweredBox answerNextBox(int answer, std::function<void()> meanwhile = {});

bool isEnabled(HWND window);
// A window's title, a button's text without the "&", a combo box's selected entry; empty for what is hidden.
std::string textOf(HWND window);
std::string entryText(HWND combo, int index);
RECT placeOf(HWND control);  // in its parent's client area
bool waitCursorShows();

// The pixels of a window's client area with everything that lies in it, as 0xRRGGBB, row after row.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;

    std::uint32_t at(int x, int y) const { return *(pixels.begin() + std::ptrdiff_t{y} * width + x); }
};
Picture pictureOf(HWND window);

// What support/user.cpp asks of a window system. From now on it calls workWhenQuiet() each time a message loop of the
// program, or a box's own, has nothing to do while work waits for it.
void watchForQuiet();

// Whether work waits: with an open box its answer, else what `later` was given.
bool workWaits(bool boxIsOpen);
void workWhenQuiet(bool boxIsOpen);

// Notes what the box that is open shows.
void lookAtBox(Box& seen);

// Clicks its button "OK" for IDOK or "Cancel" for IDCANCEL; presses Escape where there is none.
void answerBox(int answer);

#endif
