// What lies over a window: it covers the window, including frame and controls, until the window is drawn again.
#ifndef PLATFORM_NATIVE_OVERLAY_OVERLAY_H
#define PLATFORM_NATIVE_OVERLAY_OVERLAY_H

#include <QPoint>
#include <QRegion>
#include <functional>

class QPainter;
class QWidget;

// Draws within `area`, in the window's coordinates, and shows it at once. `draw` gets a painter whose origin is at
// `origin`.
void drawOver(QWidget& window, const QRegion& area, QPoint origin, const std::function<void(QPainter&)>& draw);

// Shows the window itself again within `drawn`, in its coordinates.
void uncover(QWidget& window, const QRegion& drawn);

#endif
