#include "platform/native/drawing/device_context.h"

#include <QPainter>
#include <QWidget>

#include "platform/native/api/gdi.h"
#include "platform/native/api/system.h"
#include "platform/native/base/handle_table.h"
#include "platform/native/overlay/overlay.h"
#include "platform/native/resources/pictures.h"
#include "platform/native/screen/scale.h"
#include "platform/native/windowing/client_area.h"
#include "platform/native/windowing/window.h"

namespace {

HandleTable<DeviceContext> contexts;

using Draw = std::function<void(QPainter&)>;

bool drawOnArea(const DeviceContext& context, const QRect& place, const Draw& draw) {
    ClientArea* const area = context.area();
    if (area == nullptr) return false;
    QRegion drawn(place & area->whole());
    if (context.limited) drawn &= context.limit;
    if (drawn.isEmpty()) return true;
    QPainter painter(&area->surface());
    painter.setClipRegion(drawn);
    draw(painter);
    painter.end();
    if (!context.limited) area->show(drawn);
    return true;
}

bool drawOnBitmap(const DeviceContext& context, const QRect& place, const Draw& draw) {
    QImage* const bitmap = bitmapOf(context.bitmap);
    if (bitmap == nullptr) return false;
    QPainter painter(bitmap);
    painter.setClipRect(place);
    draw(painter);
    return true;
}

// Draws on the program's windows at that place of the screen, the newest on top. Nothing where there is no such window.
void drawOnScreen(const QRect& place, const Draw& draw) {
    QRegion left(place);
    const std::vector<HWND> windows = allWindows();
    for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
        const Window* const found = findWindow(*window);
        if (found->parent() != nullptr || !found->widget()->isVisible()) continue;
        QWidget& widget = *found->widget();
        const QPoint origin = -widget.mapToGlobal(QPoint(0, 0));
        const QRegion there = left.translated(origin) & widget.rect();
        if (there.isEmpty()) continue;
        drawOver(widget, there, origin, draw);
        left -= there.translated(-origin);
    }
}

}  // namespace

ClientArea* DeviceContext::area() const {
    const Window* const found = target == Target::client ? findWindow(window) : nullptr;
    return found == nullptr ? nullptr : found->clientArea();
}

HDC addDeviceContext(DeviceContext context) {
    return static_cast<HDC>(contexts.add(std::make_unique<DeviceContext>(std::move(context))));
}

DeviceContext* findDeviceContext(HDC dc) {
    DeviceContext* const found = contexts.find(dc);
    if (found == nullptr) SetLastError(ERROR_INVALID_HANDLE);
    return found;
}

bool dropDeviceContext(HDC dc) {
    return contexts.take(dc) != nullptr;
}

void dropDeviceContexts() {
    contexts.clear();
}

QRect placeOn(HDC dc, const QRect& rectangle) {
    const DeviceContext* const context = findDeviceContext(dc);
    const bool isBitmap = context != nullptr && context->target == DeviceContext::Target::bitmap;
    return isBitmap ? rectangle : toPixels(rectangle);
}

bool drawOn(HDC dc, const QRect& area, const Draw& draw) {
    const DeviceContext* const context = findDeviceContext(dc);
    if (context == nullptr) return false;
    switch (context->target) {
        case DeviceContext::Target::client:
            return drawOnArea(*context, area, draw);
        case DeviceContext::Target::bitmap:
            return drawOnBitmap(*context, area, draw);
        case DeviceContext::Target::screen:
            break;
    }
    drawOnScreen(area, draw);
    return true;
}

HDC GetDC(HWND window) {
    if (window == nullptr) return addDeviceContext({});
    const Window* const found = findWindow(window);
    if (found == nullptr || found->clientArea() == nullptr) return nullptr;
    DeviceContext context;
    context.target = DeviceContext::Target::client;
    context.window = window;
    return addDeviceContext(context);
}

int ReleaseDC(HWND, HDC dc) {
    return dropDeviceContext(dc) ? 1 : 0;
}

HDC CreateCompatibleDC(HDC) {
    DeviceContext context;
    context.target = DeviceContext::Target::bitmap;
    context.bitmap = emptyBitmap();
    return addDeviceContext(context);
}

HGDIOBJ SelectObject(HDC dc, HGDIOBJ object) {
    DeviceContext* const context = findDeviceContext(dc);
    if (context == nullptr || context->target != DeviceContext::Target::bitmap || bitmapOf(object) == nullptr) {
        return nullptr;
    }
    return std::exchange(context->bitmap, static_cast<HBITMAP>(object));
}

BOOL DeleteDC(HDC dc) {
    return dropDeviceContext(dc) ? TRUE : FALSE;
}

BOOL DeleteObject(HGDIOBJ object) {
    for (const auto& [handle, context] : contexts) {
        if (context->bitmap == object) return FALSE;
    }
    return deleteBitmap(object) ? TRUE : FALSE;
}
