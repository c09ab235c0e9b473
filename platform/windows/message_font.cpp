#include "platform/windows/message_font.h"

namespace {

// Rows of text are 20 pixels apart, and the longest label is 150 pixels wide. A negative value is the height of the
// letters rather than of the row.
constexpr LONG largestFont = -14;

HFONT createMessageFont() {
    // Vista added a field to the structure, and XP refuses the longer size. The shorter size works everywhere.
    static_assert(_WIN32_WINNT < 0x0600);
    NONCLIENTMETRICSA metrics{};
    metrics.cbSize = sizeof metrics;
    if (SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0) == FALSE) return nullptr;
    // A user may choose a font twice as large, for which the windows would have to grow.
    if (metrics.lfMessageFont.lfHeight < largestFont) metrics.lfMessageFont.lfHeight = largestFont;
    return CreateFontIndirectA(&metrics.lfMessageFont);
}

}  // namespace

HFONT messageFont() {
    static HFONT const font = createMessageFont();
    return font;
}
