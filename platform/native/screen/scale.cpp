#include "platform/native/screen/scale.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QtMath>
#include <algorithm>

namespace {

// What the main window has room for at a scale of 1: its longest label, of 21 letters, has 150 pixels, a line 20.
constexpr double widestLetters = 7;  // on average, in plain text
constexpr double highestLine = 20;

double scale = 1;

}  // namespace

void updateScale() {
    const QFontMetrics metrics(QGuiApplication::font());
    const QString text("The quick brown fox jumps over the lazy dog");
    const double letterWidth = metrics.horizontalAdvance(text) / static_cast<double>(text.size());
    scale = std::max({1.0, letterWidth / widestLetters, metrics.lineSpacing() / highestLine});
}

int toPixels(int units) {
    return qRound(units * scale);
}

QSize toPixels(const QSize& units) {
    return {toPixels(units.width()), toPixels(units.height())};
}

QRect toPixels(const QRect& units) {
    return {QPoint(toPixels(units.left()), toPixels(units.top())),
            QPoint(toPixels(units.right() + 1) - 1, toPixels(units.bottom() + 1) - 1)};
}

int toUnits(int pixels) {
    return qCeil(pixels / scale);
}

QRect unitsAround(const QRect& pixels) {
    return {QPoint(qFloor(pixels.left() / scale), qFloor(pixels.top() / scale)),
            QPoint(toUnits(pixels.right() + 1) - 1, toUnits(pixels.bottom() + 1) - 1)};
}
