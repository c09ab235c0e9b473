#include "platform/native/events/late_clicks.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWindow>

namespace {

// The window that a hidden popup belonged to; null if `object` is not a hidden popup.
QWindow* ownerOfHiddenPopup(QObject* object) {
    auto* window = qobject_cast<QWindow*>(object);
    if (window == nullptr || window->isVisible()) return nullptr;
    if (window->type() != Qt::Popup) return nullptr;
    while (window != nullptr && window->type() == Qt::Popup) {
        window = window->transientParent();
    }
    return window;
}

class ClickPasser : public QObject {
 public:
    using QObject::QObject;

 protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        const auto* const click = dynamic_cast<QMouseEvent*>(event);
        QWindow* const owner = click == nullptr ? nullptr : ownerOfHiddenPopup(object);
        if (owner == nullptr) return false;
        const QPointF place = click->globalPosition();
        QMouseEvent passed(click->type(), owner->mapFromGlobal(place), place, click->button(), click->buttons(),
                           click->modifiers());
        QCoreApplication::sendEvent(owner, &passed);
        return true;
    }
};

}  // namespace

void passLateClicks() {
    qApp->installEventFilter(new ClickPasser(qApp));
}
