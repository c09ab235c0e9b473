#include "platform/native/accessibility/spoken_lines.h"

#include <QComboBox>
#include <QLabel>
#include <QStringList>
#include <algorithm>
#include <tuple>
#include <utility>

#include "platform/native/accessibility/accessible_objects.h"

namespace {

// Shows nothing: the program itself has drawn the text.
class InvisibleLabel : public QLabel {
 public:
    explicit InvisibleLabel(QWidget* client) : QLabel(client) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        show();
    }

 protected:
    void paintEvent(QPaintEvent*) override {}
};

// Screen readers walk through children in their order of creation unless they are raised.
void putInReadingOrder(const QWidget& client) {
    QList<QWidget*> children = client.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    std::stable_sort(children.begin(), children.end(), [](const QWidget* a, const QWidget* b) {
        return std::tuple(a->y(), a->x()) < std::tuple(b->y(), b->x());
    });
    for (QWidget* const child : children) {
        child->raise();
    }
}

QList<QComboBox*> comboBoxesIn(const QWidget& client) {
    return client.findChildren<QComboBox*>(QString(), Qt::FindDirectChildrenOnly);
}

// Qt would report a change of the name even where there is none. Returns whether there is one.
bool rename(QWidget& widget, const QString& name) {
    if (widget.accessibleName() == name) return false;
    widget.setAccessibleName(name);
    return true;
}

}  // namespace

void SpokenLines::forget(const QRegion& drawn) {
    for (Line& line : lines_) {
        if (drawn.intersects(line.place)) line.isDrawn = false;
    }
}

void SpokenLines::add(const QRect& place, const QString& text) {
    const QString words = text.trimmed();
    if (words.isEmpty() || place.isEmpty()) return;
    auto line = std::find_if(lines_.begin(), lines_.end(),
                             [&place](const Line& other) { return other.place.topLeft() == place.topLeft(); });
    if (line == lines_.end()) line = lines_.insert(line, Line{});
    line->place = place;
    line->text = words;
    line->isDrawn = true;
}

void SpokenLines::removeForgotten() {
    for (const Line& line : lines_) {
        if (!line.isDrawn) delete line.label;
    }
    std::erase_if(lines_, [](const Line& line) { return !line.isDrawn; });
}

// Returns whether any label is new or has another text.
bool SpokenLines::updateLabels(QWidget& client) {
    bool isChanged = false, isNew = false;
    for (Line& line : lines_) {
        isNew = isNew || line.label == nullptr;
        if (line.label == nullptr) line.label = new InvisibleLabel(&client);
        line.label->setGeometry(line.place);
        isChanged = rename(*line.label, line.text) || isChanged;
    }
    if (isNew) putInReadingOrder(client);
    return isChanged;
}

// The line that starts left of the control and shares rows with it. No control has two.
QLabel* SpokenLines::labelOf(const QRect& control) const {
    for (const Line& line : lines_) {
        const bool sameRow = line.place.top() <= control.bottom() && control.top() <= line.place.bottom();
        if (sameRow && line.place.left() < control.left()) return line.label;
    }
    return nullptr;
}

void SpokenLines::nameComboBoxes(const QWidget& client) {
    for (QComboBox* const combo : comboBoxesIn(client)) {
        QLabel* const label = labelOf(combo->geometry());
        if (label == nullptr) continue;
        label->setBuddy(combo);
        rename(*combo, label->accessibleName());
    }
}

// The new pick of the combo box that has the focus; empty if there is none.
QString SpokenLines::takePick(const QWidget& client) {
    QString picked;
    for (const QComboBox* const combo : comboBoxesIn(client)) {
        const std::pair now(combo->currentIndex(), combo->currentText());
        const bool isNew = std::exchange(picks_[combo], now) != now;
        if (isNew && combo->hasFocus()) picked = combo->currentText();
    }
    return picked;
}

// The lines that are no labels, from top to bottom.
QStringList SpokenLines::freeLines() const {
    std::vector<const Line*> free;
    for (const Line& line : lines_) {
        if (line.label->buddy() == nullptr) free.push_back(&line);
    }
    std::ranges::sort(free, {}, [](const Line* line) { return line->place.top(); });
    QStringList texts;
    for (const Line* const line : free) {
        texts.append(line->text);
    }
    return texts;
}

void SpokenLines::publish(QWidget& client) {
    removeForgotten();
    const bool isChanged = updateLabels(client);
    nameComboBoxes(client);
    QStringList news = isChanged ? freeLines() : QStringList();
    if (const QString pick = takePick(client); !pick.isEmpty()) news.prepend(pick);
    announce(*client.window(), news.join('\n'));
}
