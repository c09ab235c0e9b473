// The texts that a program draws into its window, for those who can't see them. A label drawn to the left of a combo
// box names that box to a screen reader; all the lines together describe the window.
#ifndef PLATFORM_NATIVE_WINDOWING_SPOKEN_LINES_H
#define PLATFORM_NATIVE_WINDOWING_SPOKEN_LINES_H

#include <QRect>
#include <QRegion>
#include <QString>
#include <vector>

class QWidget;

class SpokenLines {
 public:
    // Drops the lines that `drawn` touches: they are about to be drawn anew.
    void forget(const QRegion& drawn);

    // `place` is what the text covers, in the client area.
    void add(const QRect& place, const QString& text);

    // Tells the window and those of its combo boxes that lie directly in `client`, as far as anything changed.
    void tell(QWidget& window, const QWidget& client) const;

 private:
    struct Line {
        QRect place;
        QString text;
    };

    const Line* labelOf(const QRect& control) const;

    std::vector<Line> lines_;  // from top to bottom, in a row from left to right
};

#endif
