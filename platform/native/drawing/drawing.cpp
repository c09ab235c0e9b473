// The answer to WM_PAINT, and the copying of pictures.
#include <QPainter>

#include "platform/native/api/gdi.h"
#include "platform/native/drawing/device_context.h"
#include "platform/native/resources/pictures.h"
#include "platform/native/screen/scale.h"
#include "platform/native/windowing/client_area.h"
#include "platform/native/windowing/window.h"

namespace {

// A copy, so that a context may be copied onto itself. Null for the screen, which can't be read.
QImage pictureOf(HDC dc) {
    const DeviceContext* const context = findDeviceContext(dc);
    if (context == nullptr) return {};
    if (const QImage* const bitmap = bitmapOf(context->bitmap); bitmap != nullptr) return *bitmap;
    ClientArea* const area = context->area();
    return area == nullptr ? QImage() : area->surface();
}

}  // namespace

HDC BeginPaint(HWND window, PAINTSTRUCT* paint) {
    const Window* const found = findWindow(window);
    if (found == nullptr || found->clientArea() == nullptr) return nullptr;
    DeviceContext context;
    context.target = DeviceContext::Target::client;
    context.window = window;
    context.limited = true;
    context.limit = found->clientArea()->beginDrawing();
    const QRect box = unitsAround(context.limit.boundingRect());
    *paint = {addDeviceContext(context), FALSE, {box.left(), box.top(), box.right() + 1, box.bottom() + 1}};
    return paint->hdc;
}

BOOL EndPaint(HWND window, const PAINTSTRUCT* paint) {
    const DeviceContext* const context = findDeviceContext(paint->hdc);
    const Window* const found = findWindow(window);
    if (context == nullptr || found == nullptr || found->clientArea() == nullptr) return FALSE;
    const QRegion drawn = context->limit;
    dropDeviceContext(paint->hdc);
    ClientArea& area = *found->clientArea();
    area.show(drawn);
    area.spokenLines().publish(area);
    return TRUE;
}

BOOL BitBlt(HDC target, int x, int y, int width, int height, HDC source, int sourceX, int sourceY, DWORD operation) {
    if (operation != SRCCOPY) return FALSE;
    const QImage picture = pictureOf(source);
    if (picture.isNull()) return FALSE;
    const qreal ratio = picture.devicePixelRatio();
    const QRect part = placeOn(source, QRect(sourceX, sourceY, width, height));
    const QRectF from(part.x() * ratio, part.y() * ratio, part.width() * ratio, part.height() * ratio);
    const QRect to = placeOn(target, QRect(x, y, width, height));
    return drawOn(target, to, [&](QPainter& painter) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRectF(to), picture, from);
    });
}
