// The lines of text that the program draws into a window, for screen readers. All of them together describe the window,
// and a label drawn to the left of a combo box names that box.
#ifndef PLATFORM_NATIVE_WINDOWING_SPOKEN_LINES_H
#define PLATFORM_NATIVE_WINDOWING_SPOKEN_LINES_H

#include <QRect>
#include <QRegion>
#include <QString>
#include <vector>

class QWidget;

class SpokenLines {
 public:
    // Removes the lines that `drawn` touches, which are about to be drawn again.
    void forget(const QRegion& drawn);

    // `place` is the rectangle of the text in the client area.
    void add(const QRect& place, const QString& text);

    // Sets the description of the window and the names of the combo boxes directly in `client`, where they have
    // changed.
    void describe(QWidget& window, const QWidget& client) const;

 private:
    struct Line {
        QRect place;
        QString text;
    };

    const Line* labelOf(const QRect& control) const;

    std::vector<Line> lines_;  // from top to bottom, in a row from left to right
};

#endif
