// The part of a window that the program draws: a lasting picture, and the region that needs drawing.
//
// The program's drawing goes to the picture, and Qt's repainting shows the picture. So the program is asked to draw
// exactly when Windows would ask it.
#ifndef PLATFORM_NATIVE_WINDOWING_CLIENT_AREA_H
#define PLATFORM_NATIVE_WINDOWING_CLIENT_AREA_H

#include <QImage>
#include <QRegion>
#include <QWidget>

#include "platform/native/accessibility/spoken_lines.h"
#include "platform/native/windowing/window_class.h"

class ClientArea : public QWidget {
 public:
    ClientArea(const WindowClass& windowClass, QWidget* frame);

    QRect whole() const { return QRect(QPoint(0, 0), size()); }

    // Marks a region as needing to be drawn. Does nothing while the window isn't visible.
    void invalidate(const QRegion& region, bool erase);
    bool waits() const { return isVisible() && !waiting_.isEmpty(); }

    // Ends the need to draw and returns the region that had it, erased if any part of it asked for that.
    QRegion beginDrawing();

    // The picture, with the area's size in device pixels.
    QImage& surface();

    // Shows part of the picture on the screen, removing what was drawn on the screen there.
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
