#include "world/game_question.h"

#include <algorithm>

#include "platform/win32.h"
#include "ui/window_parts.h"
#include "ui/words.h"

namespace {

constexpr const char* className = "TIDEWRIGHT GAMES";

namespace id {
constexpr int list = 1001;
constexpr int open = 2001;
constexpr int elsewhere = 2002;
constexpr int cancel = 2003;
}  // namespace id

constexpr LONG width = 620;
constexpr std::size_t longestLine = 80;  // characters
constexpr LONG margin = 10;
constexpr LONG lineHeight = 20;
constexpr LONG buttonWidth = 100;
constexpr LONG rowHeight = 30;
constexpr LONG detailLines = 3;     // of the picked entry, which may be wider than the list
constexpr LONG captionHeight = 40;  // with the borders, on any system

// The one question that is open.
struct Question {
    std::vector<std::string> lines;
    std::vector<std::string> entries;
    HWND list = nullptr;
    GameAnswer answer = {};
};

Question* question = nullptr;

// Lines that fit into the window. A longer one is broken at a space, or anywhere in a path that has none.
std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t at = 0; at <= text.size();) {
        std::size_t end = std::min(text.find('\n', at), text.size());
        if (end - at > longestLine) {
            const std::size_t space = text.rfind(' ', at + longestLine);
            end = space != std::string::npos && space > at ? space : at + longestLine;
        }
        lines.push_back(text.substr(at, end - at));
        at = end + (end == text.size() || text[end] == '\n' || text[end] == ' ' ? 1 : 0);
    }
    return lines;
}

LONG textBottom() {
    return margin + static_cast<LONG>(question->lines.size()) * lineHeight;
}

LONG detailTop() {
    return textBottom() + margin + rowHeight;
}

void createButton(HWND window, LPCSTR text, LONG& x, LONG y, int controlId) {
    createControl(window, "Button", text, 0, {x, y, x + buttonWidth, y + rowHeight}, controlId);
    x += buttonWidth + margin;
}

void createControls(HWND window) {
    LONG y = textBottom() + margin;
    LONG x = margin;
    if (!question->entries.empty()) {
        question->list = createList(window, {x, y, width - 2 * margin, y + 200}, id::list);
        for (const std::string& entry : question->entries) {
            addEntry(question->list, entry.c_str());
        }
        SendMessageA(question->list, CB_SETCURSEL, 0, 0);
        y = detailTop() + detailLines * lineHeight + margin;
        createButton(window, "Open", x, y, id::open);
    }
    createButton(window, "Choose...", x, y, id::elsewhere);
    createButton(window, "Cancel", x, y, id::cancel);
}

// CB_ERR without a list.
LRESULT pickedEntry() {
    return question->list != nullptr ? SendMessageA(question->list, CB_GETCURSEL, 0, 0) : LRESULT{CB_ERR};
}

void drawLines(HDC dc, const std::vector<std::string>& lines, LONG y) {
    for (const std::string& line : lines) {
        RECT place{margin, y, width - margin, y + lineHeight};
        if (!line.empty()) DrawTextA(dc, withVisibleAmpersands(line).c_str(), -1, &place, 0);
        y += lineHeight;
    }
}

void paint(HWND window) {
    PAINTSTRUCT painting{};
    const HDC dc = BeginPaint(window, &painting);
    drawLines(dc, question->lines, margin);
    if (const LRESULT picked = pickedEntry(); picked != CB_ERR) {
        drawLines(dc, linesOf(question->entries[static_cast<std::size_t>(picked)]), detailTop());
    }
    EndPaint(window, &painting);
}

void answer(GameAnswer::Kind kind) {
    const LRESULT picked = pickedEntry();
    if (kind == GameAnswer::Kind::game && picked == CB_ERR) return;
    question->answer = {kind, static_cast<std::size_t>(std::max<LRESULT>(picked, 0))};
    PostQuitMessage(0);  // ends this window's own loop
}

void onCommand(int controlId) {
    if (controlId == id::open) answer(GameAnswer::Kind::game);
    if (controlId == id::elsewhere) answer(GameAnswer::Kind::elsewhere);
    if (controlId == id::cancel) answer(GameAnswer::Kind::cancelled);
}

LRESULT CALLBACK questionProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            createControls(window);
            return 0;
        case WM_PAINT:
            paint(window);
            return 0;
        case WM_COMMAND:
            if (LOWORD(wParam) == id::list) InvalidateRect(window, nullptr, TRUE);
            if (LOWORD(wParam) != id::list && HIWORD(wParam) == BN_CLICKED) onCommand(LOWORD(wParam));
            return 0;
        case WM_CLOSE:
            answer(GameAnswer::Kind::cancelled);
            return 0;
        default:
            return DefWindowProcA(window, message, wParam, lParam);
    }
}

HWND createWindow() {
    const WNDCLASSEXA windowClass = windowClassOf(className, questionProc);
    RegisterClassExA(&windowClass);  // fails the second time, which is no matter
    const LONG listHeight = question->entries.empty() ? 0 : rowHeight + detailLines * lineHeight;
    const LONG height = textBottom() + margin + listHeight + margin + rowHeight + margin + captionHeight;
    return CreateWindowExA(0, className, boxTitle(), WS_CAPTION | WS_SYSMENU, 60, 60, width, height, nullptr, nullptr,
                           windowClass.hInstance, nullptr);
}

void waitForAnswer() {
    MSG message{};
    constexpr WPARAM escape = 27;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        if (message.message == WM_CHAR && message.wParam == escape) answer(GameAnswer::Kind::cancelled);
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

}  // namespace

GameAnswer askForGame(const std::string& text, const std::vector<std::string>& entries) {
    Question asked{linesOf(text), entries};
    question = &asked;
    HWND const window = createWindow();
    if (window == nullptr) {
        asked.answer.kind = GameAnswer::Kind::noDisplay;
    } else {
        ShowWindow(window, SW_SHOW);
        UpdateWindow(window);
        waitForAnswer();
        DestroyWindow(window);
    }
    question = nullptr;
    return asked.answer;
}
