// Device contexts, the targets of drawing.
#ifndef PLATFORM_NATIVE_DRAWING_DEVICE_CONTEXT_H
#define PLATFORM_NATIVE_DRAWING_DEVICE_CONTEXT_H

#include <QRect>
#include <QRegion>
#include <functional>

#include "platform/native/api/types.h"

class ClientArea;
class QPainter;

struct DeviceContext {
    enum class Target { screen, client, bitmap };

    Target target = Target::screen;
    HWND window = nullptr;     // of a client area
    HBITMAP bitmap = nullptr;  // of a context in memory
    bool limited = false;      // by `limit`, while WM_PAINT is answered
    QRegion limit;

    // Null if the window is gone, and for the other targets.
    ClientArea* area() const;
};

HDC addDeviceContext(DeviceContext context);
DeviceContext* findDeviceContext(HDC dc);
bool dropDeviceContext(HDC dc);
void dropDeviceContexts();

// Where a rectangle of the context's coordinates lies, in pixels. A bitmap isn't scaled.
QRect placeOn(HDC dc, const QRect& rectangle);

// Calls `draw` with a painter that is limited to `area` of the context, in pixels. On a window the result shows at
// once, or with EndPaint while WM_PAINT is answered. False if there is nothing to draw on.
bool drawOn(HDC dc, const QRect& area, const std::function<void(QPainter&)>& draw);

#endif
