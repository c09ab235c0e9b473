#include "platform/native/windowing/screen_drawing.h"

#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <QWidget>
#include <QtMath>

#include "platform/native/windowing/window.h"

namespace {

// Lies above everything else in a window. It is transparent, and lets clicks through, except for what was drawn.
class Overlay : public QWidget {
 public:
    explicit Overlay(QWidget* window) : QWidget(window) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
    }

    // `area` is in the window's coordinates; `origin` is the screen's origin in them.
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

void drawOnScreen(const QRect& area, const std::function<void(QPainter&)>& draw) {
    QRegion left(area);
    const std::vector<HWND> windows = allWindows();
    for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
        const Window* const found = findWindow(*window);
        if (found->parent() != nullptr || !found->widget()->isVisible()) continue;
        QWidget& widget = *found->widget();
        const QPoint origin = -widget.mapToGlobal(QPoint(0, 0));
        const QRegion there = left.translated(origin) & widget.rect();
        if (there.isEmpty()) continue;
        Overlay* overlay = overlayOf(widget);
        if (overlay == nullptr) overlay = new Overlay(&widget);
        overlay->draw(there, origin, draw);
        left -= there.translated(-origin);
    }
}

void uncoverScreenDrawing(QWidget& window, const QRegion& drawn) {
    Overlay* const overlay = overlayOf(window);
    if (overlay != nullptr && !overlay->uncover(drawn)) delete overlay;
}
