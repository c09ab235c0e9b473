// The part of a window that its program draws: a picture that lasts, and the region that waits to be drawn.
//
// The program's drawing is its own affair and Qt's is Qt's: what the program draws stays in the surface, and whenever
// Qt repaints the widget, it shows the surface. So the program draws when Windows would have it draw, and never twice.
#ifndef PLATFORM_NATIVE_WINDOWING_CLIENT_AREA_H
#define PLATFORM_NATIVE_WINDOWING_CLIENT_AREA_H

#include <QImage>
#include <QRegion>
#include <QWidget>

#include "platform/native/windowing/spoken_lines.h"
#include "platform/native/windowing/window_class.h"

class ClientArea : public QWidget {
 public:
    ClientArea(const WindowClass& windowClass, QWidget* frame);

    QRect whole() const { return QRect(QPoint(0, 0), size()); }

    // Adds to what waits to be drawn; nothing waits in a window that isn't visible.
    void invalidate(const QRegion& region, bool erase);
    bool waits() const { return isVisible() && !waiting_.isEmpty(); }

    // Erases what waits, if that was asked for anywhere in it, and empties it. Returns what it was.
    QRegion beginDrawing();

    // The picture, of the area's size in device pixels.
    QImage& surface();

    // Brings a part of the picture to the screen, above what was drawn on the screen there.
    void show(const QRegion& drawn);

    SpokenLines& spokenLines() { return spokenLines_; }

 protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

 private:
    void fill(const QRegion& region);

    UINT classStyle_;
    bool hasBackground_;
    QImage surface_;
    QRegion waiting_;
    bool erase_ = false;
    SpokenLines spokenLines_;
};

#endif
