#include "restore/going_back_window.h"

#include <algorithm>
#include <set>
#include <string_view>
#include <vector>

#include "platform/win32.h"
#include "resources/ids.h"
#include "restore/going_back.h"
#include "restore/point_files.h"
#include "restore/point_words.h"
#include "ui/cursors.h"
#include "ui/window_parts.h"

namespace {

constexpr const char* className = "TIDEWRIGHT RESTORE";

namespace id {
constexpr int pointList = 1001;
constexpr int neighborhoodList = 1002;
constexpr int goBackButton = 2001;
constexpr int makeButton = 2002;
constexpr int deleteButton = 2003;
}  // namespace id

constexpr LONG width = 700;
constexpr LONG height = 330;
constexpr LONG margin = 10;
constexpr LONG labelWidth = 120;
constexpr LONG lineHeight = 20;
constexpr LONG rowHeight = 35;
constexpr LONG buttonHeight = 30;
constexpr LONG pointTop = margin;
constexpr LONG neighborhoodTop = pointTop + rowHeight;
constexpr LONG linesTop = neighborhoodTop + rowHeight + margin;
constexpr LONG lineCount = 8;
constexpr LONG buttonTop = linesTop + lineCount * lineHeight + margin;
constexpr LONG openListHeight = 220;

// Letters in a line of the window. Those of the usual fonts are narrower than the average that this allows for.
constexpr std::size_t lineLength = 96;

// All that the window shows.
struct Shown {
    PointsOfGame game;
    std::vector<RestorePoint> points;
    std::vector<int> neighborhoods;  // of the list, without the first entry "All"
    std::vector<std::string> lines;
    GoingBackControls controls;
};

Shown* shown = nullptr;

LRESULT send(HWND control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageA(control, message, wParam, lParam);
}

RestorePoint* pickedPoint() {
    const LRESULT index = send(shown->controls.pointList, CB_GETCURSEL);
    if (index < 0 || index >= static_cast<LRESULT>(shown->points.size())) return nullptr;
    return &shown->points[static_cast<std::size_t>(index)];
}

int pickedNeighborhood() {
    const LRESULT index = send(shown->controls.neighborhoodList, CB_GETCURSEL);
    const auto count = static_cast<LRESULT>(shown->neighborhoods.size());
    if (index < 1 || index > count) return allNeighborhoods;
    return shown->neighborhoods[static_cast<std::size_t>(index - 1)];
}

// The text in lines of the window, broken between words.
void addWrapped(std::string_view text) {
    while (text.size() > lineLength) {
        const std::size_t space = text.rfind(' ', lineLength);
        const std::size_t end = space == std::string_view::npos || space == 0 ? lineLength : space;
        shown->lines.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(space == end ? end + 1 : end, text.size()));
    }
    shown->lines.emplace_back(text);
}

void describePick() {
    shown->lines.clear();
    const RestorePoint* const point = pickedPoint();
    const PointsOfGame& game = shown->game;
    if (point == nullptr) {
        addWrapped("There is no restore point yet. tidewright-start makes one before each evening.");
    } else if (const std::string refusal = refusalOf(*point, game.simsDirectory); !refusal.empty()) {
        addWrapped(refusal);
    } else {
        for (const std::string& line :
             comparisonLines(game.pointsDirectory, *point, game.simsDirectory, pickedNeighborhood())) {
            addWrapped(line);
        }
    }
    if (shown->lines.size() > static_cast<std::size_t>(lineCount)) {
        shown->lines.resize(lineCount);
        shown->lines.back() = "... and more, which the question before going back names.";
    }
    InvalidateRect(shown->controls.window, nullptr, TRUE);
}

// Fills the list of neighborhoods with those of the picked point. The one that was picked stays so if it is among them.
void pickPoint() {
    showWaitCursor();
    const int picked = pickedNeighborhood();
    emptyCombo(shown->controls.neighborhoodList);
    std::set<int> numbers;
    if (const RestorePoint* const point = pickedPoint()) {
        for (const PointFile& file : point->files) {
            numbers.insert(neighborhoodOf(file.path));
        }
    }
    shown->neighborhoods.assign(numbers.begin(), numbers.end());
    addEntry(shown->controls.neighborhoodList, "All");
    for (const int number : shown->neighborhoods) {
        addEntry(shown->controls.neighborhoodList, ("Neighborhood " + std::to_string(number)).c_str());
    }
    const auto same = std::ranges::find(shown->neighborhoods, picked);
    const auto entry = same != shown->neighborhoods.end() ? same - shown->neighborhoods.begin() + 1 : 0;
    send(shown->controls.neighborhoodList, CB_SETCURSEL, static_cast<WPARAM>(entry));
    describePick();
    showArrowCursor();
}

void refill() {
    showWaitCursor();
    const PointsOfGame& game = shown->game;
    shown->points = listRestorePoints(game.pointsDirectory);
    checkPoints(game.pointsDirectory, shown->points);
    emptyCombo(shown->controls.pointList);
    for (const std::string& entry :
         pointEntries(game.pointsDirectory, shown->points, game.simsDirectory, presentTime())) {
        addEntry(shown->controls.pointList, entry.c_str());
    }
    if (!shown->points.empty()) send(shown->controls.pointList, CB_SETCURSEL, 0);
    pickPoint();
}

RECT placeOfList(LONG top) {
    return {margin + labelWidth, top, width - 3 * margin, top + openListHeight};
}

void onCreate(HWND window) {
    shown->controls.window = window;
    shown->controls.pointList = createList(window, placeOfList(pointTop), id::pointList);
    shown->controls.neighborhoodList = createList(window, placeOfList(neighborhoodTop), id::neighborhoodList);
    LONG x = margin;
    const auto addButton = [&](LPCSTR text, LONG buttonWidth, int controlId) {
        const RECT place{x, buttonTop, x + buttonWidth, buttonTop + buttonHeight};
        x += buttonWidth + margin;
        return createControl(window, "Button", text, 0, place, controlId);
    };
    shown->controls.goBackButton = addButton("Go Back", 120, id::goBackButton);
    shown->controls.makeButton = addButton("Make a Restore Point", 200, id::makeButton);
    shown->controls.deleteButton = addButton("Delete", 120, id::deleteButton);
}

void drawLine(HDC dc, const std::string& text, LONG left, LONG top, LONG right) {
    RECT place{left, top, right, top + lineHeight};
    if (!text.empty()) DrawTextA(dc, withVisibleAmpersands(text).c_str(), -1, &place, 0);
}

void onPaint(HWND window) {
    constexpr LONG textDrop = 4;  // beside the lists' own texts
    PAINTSTRUCT painting{};
    const HDC dc = BeginPaint(window, &painting);
    drawLine(dc, "Restore point:", margin, pointTop + textDrop, margin + labelWidth);
    drawLine(dc, "Neighborhood:", margin, neighborhoodTop + textDrop, margin + labelWidth);
    for (std::size_t i = 0; i < shown->lines.size(); ++i) {
        drawLine(dc, shown->lines[i], margin, linesTop + static_cast<LONG>(i) * lineHeight, width - 2 * margin);
    }
    EndPaint(window, &painting);
}

void onButton(int controlId) {
    const RestorePoint* const point = pickedPoint();
    bool isDone = false;
    if (controlId == id::makeButton) isDone = makePoint(shown->game);
    if (controlId == id::goBackButton && point != nullptr) {
        isDone = goBackAfterQuestion(shown->game, *point, pickedNeighborhood());
    }
    if (controlId == id::deleteButton && point != nullptr) isDone = deleteAfterQuestion(shown->game, *point);
    if (isCutOff(shown->game)) {
        DestroyWindow(shown->controls.window);
    } else if (isDone) {
        refill();
    }
}

void onCommand(int controlId, int notification) {
    if (notification == CBN_SELCHANGE && controlId == id::pointList) pickPoint();
    if (notification == CBN_SELCHANGE && controlId == id::neighborhoodList) describePick();
    if (notification == BN_CLICKED && controlId >= id::goBackButton) onButton(controlId);
}

LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            onCreate(window);
            return 0;
        case WM_PAINT:
            onPaint(window);
            return 0;
        case WM_COMMAND:
            onCommand(LOWORD(wParam), HIWORD(wParam));
            return 0;
        case WM_DESTROY:
            PostQuitMessage(0);
            return 0;
        default:
            return DefWindowProcA(window, message, wParam, lParam);
    }
}

HWND createWindow() {
    const HINSTANCE instance = GetModuleHandleA(nullptr);
    WNDCLASSEXA windowClass = windowClassOf(className, windowProc);
    windowClass.hIcon = LoadIconA(instance, MAKEINTRESOURCEA(IDI_MAIN));
    RegisterClassExA(&windowClass);  // fails the second time, which is no matter
    return CreateWindowExA(0, className, goingBackTitle, WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX, 40, 40, width,
                           height, nullptr, nullptr, instance, nullptr);
}

}  // namespace

bool showGoingBackWindow(const PointsOfGame& game) {
    Shown all;
    all.game = game;
    shown = &all;
    HWND const window = createWindow();
    if (window != nullptr) {
        ShowWindow(window, SW_SHOW);
        refill();
        UpdateWindow(window);
        MSG message{};
        while (GetMessageA(&message, nullptr, 0, 0) > 0) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
    }
    shown = nullptr;
    return window != nullptr;
}

GoingBackControls goingBackControls() {
    return shown != nullptr ? shown->controls : GoingBackControls{};
}
