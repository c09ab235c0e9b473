// What a program draws on the screen itself, where a window of its own lies: it covers that window, with frame and
// controls, until the window is drawn anew.
#ifndef PLATFORM_NATIVE_WINDOWING_SCREEN_DRAWING_H
#define PLATFORM_NATIVE_WINDOWING_SCREEN_DRAWING_H

#include <QRect>
#include <QRegion>
#include <functional>

class QPainter;
class QWidget;

// Draws within `area`, in screen coordinates, on the windows that lie there, the newest on top; it is seen at once.
// Where none of them lies, nothing is drawn.
void drawOnScreen(const QRect& area, const std::function<void(QPainter&)>& draw);

// `drawn`, in the coordinates of the whole window, shows the window itself again.
void uncoverScreenDrawing(QWidget& window, const QRegion& drawn);

#endif
