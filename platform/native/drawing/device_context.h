// Device contexts: what a program draws on.
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

    // Null once its window is gone, and for the other targets.
    ClientArea* area() const;
};

HDC addDeviceContext(DeviceContext context);
DeviceContext* findDeviceContext(HDC dc);
bool dropDeviceContext(HDC dc);
void dropDeviceContexts();

// Has `draw` draw within `area` of the context. On a window it is seen at once, but while WM_PAINT is answered: then
// EndPaint shows it. False if there is nothing to draw on.
bool drawOn(HDC dc, const QRect& area, const std::function<void(QPainter&)>& draw);

#endif
