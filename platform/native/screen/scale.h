// The scale of the program's windows.
//
// The program lays its windows out in pixels for a font of Windows' usual size. For players who have chosen larger
// letters, such a pixel becomes a unit of several pixels, so that all text keeps its room. The letters themselves are
// as large as chosen. Qt's own scaling, for screens with many dots per inch, comes on top.
#ifndef PLATFORM_NATIVE_SCREEN_SCALE_H
#define PLATFORM_NATIVE_SCREEN_SCALE_H

#include <QRect>

// Takes the scale from the application's font: 1, or more for a large one. Windows that exist keep their places.
void updateScale();

// Rounded to the nearest pixel; neighboring rectangles stay neighbors.
int toPixels(int units);
QSize toPixels(const QSize& units);
QRect toPixels(const QRect& units);

// Rounds up: a partly covered unit counts.
int toUnits(int pixels);

// The smallest rectangle of whole units around these pixels.
QRect unitsAround(const QRect& pixels);

#endif
