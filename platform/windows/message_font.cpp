#include "platform/windows/message_font.h"

#include <cstring>

namespace {

// `pixels` / `units`.
struct Scale {
    int pixels;
    int units;

    bool isLessThan(const Scale& other) const { return pixels * other.units < other.pixels * units; }
};
constexpr Scale unscaled{1, 1};

// What the program's windows are laid out for: rows of text, and the letters of a label or a button.
constexpr int rowHeight = 20;
constexpr char letters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr int letterCount = sizeof letters - 1;
constexpr int letterWidth = 7;

LOGFONTA description{};
HFONT font = nullptr;
Scale scale = unscaled;

Scale smaller(const Scale& a, const Scale& b) {
    return b.isLessThan(a) ? b : a;
}

Scale larger(const Scale& a, const Scale& b) {
    return a.isLessThan(b) ? b : a;
}

bool readChoice(LOGFONTA& chosen) {
    // Vista added a field to the structure, and XP refuses the longer size. The shorter size works everywhere.
    static_assert(_WIN32_WINNT < 0x0600);
    NONCLIENTMETRICSA metrics{};
    metrics.cbSize = sizeof metrics;
    if (SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0) == FALSE) return false;
    chosen = metrics.lfMessageFont;
    return true;
}

Scale scaleFor(HFONT measured) {
    HDC const screen = GetDC(nullptr);
    HGDIOBJ const before = SelectObject(screen, measured);
    SIZE size{};
    GetTextExtentPoint32A(screen, letters, letterCount, &size);
    SelectObject(screen, before);
    ReleaseDC(nullptr, screen);
    const Scale forRows{static_cast<int>(size.cy), rowHeight};
    const Scale forLetters{static_cast<int>(size.cx), letterCount * letterWidth};
    return larger(unscaled, larger(forRows, forLetters));
}

Scale largestOnScreen() {
    const RECT area = workArea(nullptr);
    const SIZE frame = windowSize(0, 0, WS_OVERLAPPEDWINDOW, 0);
    const Scale forWidth{static_cast<int>(area.right - area.left - frame.cx), neededSize.cx};
    const Scale forHeight{static_cast<int>(area.bottom - area.top - frame.cy), neededSize.cy};
    return larger(unscaled, smaller(forWidth, forHeight));
}

}  // namespace

void updateMessageFont() {
    LOGFONTA wanted{};
    if (!readChoice(wanted)) return;
    HFONT created = CreateFontIndirectA(&wanted);
    const Scale needed = scaleFor(created);
    scale = smaller(needed, largestOnScreen());
    if (scale.isLessThan(needed)) {
        // The letters shrink with the windows. Each division rounds towards smaller ones.
        DeleteObject(created);
        wanted.lfHeight = wanted.lfHeight * scale.pixels / scale.units * needed.units / needed.pixels;
        created = CreateFontIndirectA(&wanted);
    }
    if (font != nullptr && std::memcmp(&wanted, &description, sizeof wanted) == 0) {
        DeleteObject(created);
        return;
    }
    // The earlier font stays: a window may have it.
    font = created;
    description = wanted;
}

HFONT messageFont() {
    return font;
}

int toPixels(int units) {
    return MulDiv(units, scale.pixels, scale.units);
}

RECT toPixels(const RECT& units) {
    return {toPixels(units.left), toPixels(units.top), toPixels(units.right), toPixels(units.bottom)};
}

RECT toUnits(const RECT& pixels) {
    const auto down = [](LONG length) { return length * scale.units / scale.pixels; };
    const auto up = [](LONG length) { return (length * scale.units + scale.pixels - 1) / scale.pixels; };
    return {down(pixels.left), down(pixels.top), up(pixels.right), up(pixels.bottom)};
}

RECT workArea(HWND window) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoA(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &monitor);
    return monitor.rcWork;
}

SIZE windowSize(int clientWidth, int clientHeight, DWORD style, DWORD extendedStyle) {
    RECT whole{0, 0, clientWidth, clientHeight};
    AdjustWindowRectEx(&whole, style, TRUE, extendedStyle);
    return {whole.right - whole.left, whole.bottom - whole.top};
}
