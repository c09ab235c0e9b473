#include "platform/native/screen/cursor.h"

#include <QGuiApplication>
#include <QWidget>

#include "platform/native/api/gdi.h"
#include "platform/native/api/resources.h"
#include "platform/native/api/system.h"
#include "platform/native/base/handle_table.h"
#include "platform/native/resources/resource_file.h"
#include "platform/native/screen/display.h"

namespace {

HandleTable<Qt::CursorShape> cursors;

HCURSOR makeCursor(Qt::CursorShape shape) {
    return static_cast<HCURSOR>(cursors.add(std::make_unique<Qt::CursorShape>(shape)));
}

// Each cursor has one handle, however often it is loaded.
HCURSOR systemCursor(WORD id) {
    static HCURSOR const arrow = makeCursor(Qt::ArrowCursor);
    static HCURSOR const wait = makeCursor(Qt::WaitCursor);
    static HCURSOR const starting = makeCursor(Qt::BusyCursor);
    if (id == resourceId(IDC_ARROW)) return arrow;
    if (id == resourceId(IDC_WAIT)) return wait;
    return id == resourceId(IDC_APPSTARTING) ? starting : nullptr;
}

HCURSOR arrowCursor() {
    return systemCursor(resourceId(IDC_ARROW));
}

HCURSOR& currentCursor() {
    static HCURSOR current = arrowCursor();
    return current;
}

void show(HCURSOR cursor) {
    if (!hasDisplay()) return;
    dropOverrideCursor();
    if (cursor != arrowCursor()) QGuiApplication::setOverrideCursor(*cursors.find(cursor));
}

}  // namespace

void setClassCursor(QWidget& widget, HCURSOR cursor) {
    if (const Qt::CursorShape* const shape = cursors.find(cursor); shape != nullptr) widget.setCursor(*shape);
}

CursorPause::CursorPause() : paused_(SetCursor(arrowCursor())) {}

CursorPause::~CursorPause() {
    SetCursor(paused_);
}

void dropOverrideCursor() {
    while (QGuiApplication::overrideCursor() != nullptr) {
        QGuiApplication::restoreOverrideCursor();
    }
}

HCURSOR LoadCursorA(HINSTANCE instance, LPCSTR name) {
    HCURSOR const cursor = instance == nullptr ? systemCursor(resourceId(name)) : nullptr;
    if (cursor == nullptr) SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
    return cursor;
}

HCURSOR SetCursor(HCURSOR cursor) {
    HCURSOR const before = currentCursor();
    if (cursor == before || cursors.find(cursor) == nullptr) return before;
    show(cursor);
    currentCursor() = cursor;
    return before;
}
