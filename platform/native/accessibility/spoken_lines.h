// The lines of text that the program draws into a window, as objects for screen readers. A line drawn to the left of a
// combo box is that box's label. Changes of the others are announced, wherever the focus is, and so is a new pick,
// which screen readers would notice in a list only.
#ifndef PLATFORM_NATIVE_ACCESSIBILITY_SPOKEN_LINES_H
#define PLATFORM_NATIVE_ACCESSIBILITY_SPOKEN_LINES_H

#include <QRect>
#include <QRegion>
#include <QStringList>
#include <map>
#include <utility>
#include <vector>

class QComboBox;
class QLabel;
class QWidget;

class SpokenLines {
 public:
    // Removes the lines that `drawn` touches, which are about to be drawn again.
    void forget(const QRegion& drawn);

    // `place` is the rectangle of the text in the client area.
    void add(const QRect& place, const QString& text);

    // Brings the objects in `client` up to date: a static text for each line, in reading order with the controls, and
    // the names of the combo boxes.
    void publish(QWidget& client);

 private:
    struct Line {
        QRect place;
        QString text;
        bool isDrawn = true;      // else the next `publish` removes it
        QLabel* label = nullptr;  // a child of the client area
    };

    void removeForgotten();
    bool updateLabels(QWidget& client);
    void nameComboBoxes(const QWidget& client);
    QLabel* labelOf(const QRect& control) const;
    QString takePick(const QWidget& client);
    QStringList freeLines() const;

    std::vector<Line> lines_;
    std::map<const QComboBox*, std::pair<int, QString>> picks_;  // each one's index and text
};

#endif
