#include "platform/native/overlay/overlay.h"

#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <QWidget>
#include <QtMath>

namespace {

// Lies above everything else in a window. It is transparent, and lets clicks through, except for what was drawn.
class Overlay : public QWidget {
 public:
    explicit Overlay(QWidget* window) : QWidget(window) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
    }

    void draw(const QRegion& area, QPoint origin, const std::function<void(QPainter&)>& draw) {
        coverWindow();
        QPainter painter(&picture_);
        painter.setClipRegion(area);
        painter.translate(origin);
        draw(painter);
        painter.end();
        covered_ += area;
        show();
        raise();
        repaint(area);
    }

    // False if nothing of it is left.
    bool uncover(const QRegion& drawn) {
        covered_ -= drawn;
        update(drawn);
        return !covered_.isEmpty();
    }

 protected:
    void paintEvent(QPaintEvent* event) override {
        QPainter painter(this);
        painter.setClipRegion(event->region() & covered_);
        painter.drawImage(0, 0, picture_);
    }

 private:
    void coverWindow() {
        setGeometry(0, 0, parentWidget()->width(), parentWidget()->height());
        const qreal ratio = devicePixelRatioF();
        const QSize needed(qCeil(width() * ratio), qCeil(height() * ratio));
        if (picture_.size() == needed) return;
        const QImage old = picture_;
        picture_ = QImage(needed, QImage::Format_ARGB32_Premultiplied);
        picture_.setDevicePixelRatio(ratio);
        picture_.fill(Qt::transparent);
        if (!old.isNull()) QPainter(&picture_).drawImage(0, 0, old);
    }

    QImage picture_;
    QRegion covered_;
};

Overlay* overlayOf(const QWidget& window) {
    for (QObject* const child : window.children()) {
        if (auto* const overlay = dynamic_cast<Overlay*>(child); overlay != nullptr) return overlay;
    }
    return nullptr;
}

}  // namespace

void drawOver(QWidget& window, const QRegion& area, QPoint origin, const std::function<void(QPainter&)>& draw) {
    Overlay* overlay = overlayOf(window);
    if (overlay == nullptr) overlay = new Overlay(&window);
    overlay->draw(area, origin, draw);
}

void uncover(QWidget& window, const QRegion& drawn) {
    Overlay* const overlay = overlayOf(window);
    if (overlay != nullptr && !overlay->uncover(drawn)) delete overlay;
}
