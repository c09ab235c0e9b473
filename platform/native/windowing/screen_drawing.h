// What the program draws on the screen, at the place of one of its windows: it covers that window, including frame and
// controls, until the window is drawn again.
#ifndef PLATFORM_NATIVE_WINDOWING_SCREEN_DRAWING_H
#define PLATFORM_NATIVE_WINDOWING_SCREEN_DRAWING_H

#include <QRect>
#include <QRegion>
#include <functional>

class QPainter;
class QWidget;

// Draws within `area`, in screen coordinates, on the program's windows there, the newest on top, and shows it at once.
// Draws nothing where there is no such window.
void drawOnScreen(const QRect& area, const std::function<void(QPainter&)>& draw);

// Shows the window itself again within `drawn`, in coordinates of the whole window.
void uncoverScreenDrawing(QWidget& window, const QRegion& drawn);

#endif
