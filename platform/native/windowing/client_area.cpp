#include "platform/native/windowing/client_area.h"

#include <QPaintEvent>
#include <QPainter>
#include <QtMath>

#include "platform/native/overlay/overlay.h"
#include "platform/native/screen/cursor.h"

ClientArea::ClientArea(const WindowClass& windowClass, QWidget* frame)
    : QWidget(frame), classStyle_(windowClass.style), hasBackground_(windowClass.background != nullptr) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setClassCursor(*this, windowClass.cursor);
}

void ClientArea::invalidate(const QRegion& region, bool erase) {
    if (!isVisible()) return;
    waiting_ += region.intersected(whole());
    erase_ = (erase_ || erase) && !waiting_.isEmpty();
}

QRegion ClientArea::beginDrawing() {
    surface();  // after a change of scale the whole area waits
    QRegion drawn = waiting_;
    if (erase_ && hasBackground_) fill(drawn);
    waiting_ = QRegion();
    erase_ = false;
    spokenLines_.forget(drawn);
    return drawn;
}

QImage& ClientArea::surface() {
    const qreal ratio = devicePixelRatioF();
    const QSize needed(qCeil(width() * ratio), qCeil(height() * ratio));
    if (surface_.size() == needed && surface_.devicePixelRatio() == ratio) return surface_;
    const QImage old = surface_;
    surface_ = QImage(needed, QImage::Format_RGB32);
    surface_.setDevicePixelRatio(ratio);
    fill(whole());
    if (old.devicePixelRatio() == ratio && !old.isNull()) QPainter(&surface_).drawImage(0, 0, old);
    if (old.devicePixelRatio() != ratio) invalidate(whole(), true);  // it lies on another screen now
    return surface_;
}

void ClientArea::fill(const QRegion& region) {
    QPainter painter(&surface());
    for (const QRect& part : region) {
        painter.fillRect(part, palette().base());
    }
}

void ClientArea::show(const QRegion& drawn) {
    if (drawn.isEmpty()) return;
    uncover(*window(), drawn.translated(mapTo(window(), QPoint(0, 0))));
    repaint(drawn);
}

void ClientArea::paintEvent(QPaintEvent* event) {
    const QImage& picture = surface();
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.drawImage(0, 0, picture);
}

// A minimised window still has its picture.
void ClientArea::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) invalidate(whole(), true);
}

void ClientArea::resizeEvent(QResizeEvent* event) {
    const bool wholly = ((classStyle_ & CS_HREDRAW) != 0 && event->oldSize().width() != width()) ||
                        ((classStyle_ & CS_VREDRAW) != 0 && event->oldSize().height() != height());
    invalidate(wholly ? QRegion(whole()) : QRegion(whole()) - QRect(QPoint(0, 0), event->oldSize()), true);
}

// The font or the colors have changed, so the picture is out of date.
void ClientArea::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) invalidate(whole(), true);
}
