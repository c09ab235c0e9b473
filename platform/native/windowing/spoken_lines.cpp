#include "platform/native/windowing/spoken_lines.h"

#include <QComboBox>
#include <QStringList>
#include <algorithm>
#include <tuple>

void SpokenLines::forget(const QRegion& drawn) {
    std::erase_if(lines_, [&drawn](const Line& line) { return drawn.intersects(line.place); });
}

void SpokenLines::add(const QRect& place, const QString& text) {
    const QString words = text.trimmed();
    if (words.isEmpty() || place.isEmpty()) return;
    std::erase_if(lines_, [&place](const Line& line) { return line.place == place; });
    lines_.push_back({place, words});
    std::stable_sort(lines_.begin(), lines_.end(), [](const Line& a, const Line& b) {
        return std::tuple(a.place.top(), a.place.left()) < std::tuple(b.place.top(), b.place.left());
    });
}

// The nearest line that starts left of the control and shares rows with it.
const SpokenLines::Line* SpokenLines::labelOf(const QRect& control) const {
    const Line* label = nullptr;
    for (const Line& line : lines_) {
        const bool sameRow = line.place.top() <= control.bottom() && control.top() <= line.place.bottom();
        if (!sameRow || line.place.left() >= control.left()) continue;
        if (label == nullptr || line.place.left() > label->place.left()) label = &line;
    }
    return label;
}

void SpokenLines::describe(QWidget& window, const QWidget& client) const {
    QStringList all;
    for (const Line& line : lines_) {
        all.append(line.text);
    }
    const QString description = all.join('\n');
    if (window.accessibleDescription() != description) window.setAccessibleDescription(description);
    for (QComboBox* const combo : client.findChildren<QComboBox*>(QString(), Qt::FindDirectChildrenOnly)) {
        const Line* const label = labelOf(combo->geometry());
        if (label != nullptr && combo->accessibleName() != label->text) combo->setAccessibleName(label->text);
    }
}
