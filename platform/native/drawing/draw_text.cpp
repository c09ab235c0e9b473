// DrawTextA: lines, underlined letters, and texts for screen readers.
#include <QFontMetrics>
#include <QGuiApplication>
#include <QPainter>
#include <QTextLayout>
#include <QtMath>
#include <vector>

#include "platform/native/api/gdi.h"
#include "platform/native/base/text1252.h"
#include "platform/native/drawing/device_context.h"
#include "platform/native/screen/display.h"
#include "platform/native/screen/scale.h"
#include "platform/native/screen/tall_letters.h"
#include "platform/native/windowing/client_area.h"
#include "platform/native/windowing/window.h"

namespace {

struct Line {
    QString source;
    QString text;  // without its marks
    QList<QTextLayout::FormatRange> underlined;
};

// Removes each "&" and notes the character after it. An "&" at the very end is drawn.
Line readLine(const QString& source) {
    Line line{source, {}, {}};
    for (qsizetype i = 0; i < source.size(); ++i) {
        const bool mark = source[i] == '&' && i + 1 < source.size();
        if (mark) ++i;
        if (mark && source[i] != '&') {
            QTextCharFormat format;
            format.setFontUnderline(true);
            line.underlined.append({static_cast<int>(line.text.size()), 1, format});
        }
        line.text += source[i] == '\t' ? QChar(' ') : source[i];
    }
    return line;
}

// A line break at the very end starts no new line.
std::vector<Line> readLines(QString source) {
    source.replace("\r\n", "\n").replace('\r', '\n');
    if (source.endsWith('\n')) source.chop(1);
    std::vector<Line> lines;
    for (const QString& line : source.split('\n')) {
        lines.push_back(readLine(line));
    }
    return lines;
}

// Draws one line in the top row of the rectangle, which has room for tall letters. Returns the place of its text.
QRect drawLine(QPainter& painter, const Line& line, const QRect& rectangle, bool centered) {
    QTextLayout layout(line.text, painter.font());
    layout.setFormats(line.underlined);
    layout.beginLayout();
    QTextLine textLine = layout.createLine();
    layout.endLayout();
    if (!textLine.isValid()) return {};
    const int width = qCeil(textLine.naturalTextWidth());
    const int left = centered ? rectangle.left() + (rectangle.width() - width) / 2 : rectangle.left();
    layout.draw(&painter, QPointF(left, rectangle.top() + riseOfTallLetters(painter.font())));
    return QRect(left, rectangle.top(), width, qCeil(textLine.height()));
}

void speak(const DeviceContext& context, const QRect& place, const QString& text) {
    ClientArea* const area = context.area();
    if (area == nullptr) return;
    const QRegion seen = context.limited ? context.limit : QRegion(area->whole());
    if (seen.intersects(place)) area->spokenLines().add(place & area->whole(), text);
}

}  // namespace

int DrawTextA(HDC dc, LPCSTR text, int count, RECT* rectangle, UINT format) {
    const DeviceContext* const context = findDeviceContext(dc);
    if (!hasDisplay() || context == nullptr || text == nullptr || count < -1) return 0;
    const QString source = count == -1 ? qtText(text) : qtText(std::string_view(text, static_cast<std::size_t>(count)));
    if (source.isEmpty()) return 0;
    const QRect bounds = placeOn(
        dc, QRect(QPoint(rectangle->left, rectangle->top), QPoint(rectangle->right - 1, rectangle->bottom - 1)));
    const QFont font = QGuiApplication::font();
    const int lineHeight = QFontMetrics(font).lineSpacing();
    const std::vector<Line> lines = readLines(source);
    drawOn(dc, bounds, [&](QPainter& painter) {
        painter.setFont(font);
        painter.setPen(QGuiApplication::palette().color(QPalette::Text));
        QRect row = bounds;
        for (const Line& line : lines) {
            speak(*context, drawLine(painter, line, row, (format & DT_CENTER) != 0) & bounds, line.source);
            row.setTop(row.top() + lineHeight);
        }
    });
    return toUnits(lineHeight * static_cast<int>(lines.size()));
}
