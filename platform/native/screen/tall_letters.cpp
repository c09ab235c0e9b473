#include "platform/native/screen/tall_letters.h"

#include <QFontMetrics>
#include <algorithm>
#include <optional>

#include "platform/native/base/text1252.h"

// Measuring draws the letters, and each entry of a list asks, so the answer for the last font is kept.
int riseOfTallLetters(const QFont& font) {
    static std::optional<QFont> last;
    static int rise = 0;
    if (last == font) return rise;
    const QFontMetrics metrics(font);
    rise = std::max(0, -metrics.tightBoundingRect(qtText("\xC5\xC9\xD1\x8A")).top() - metrics.ascent());
    last = font;
    return rise;
}
