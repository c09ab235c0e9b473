#include "platform/native/accessibility/accessible_objects.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>

namespace {

// What is announced. Screen readers speak a notification when it shows, and pass over it when they read the window,
// since it isn't visible.
class Announcement : public QWidget {
 public:
    using QWidget::QWidget;
};

class AccessibleAnnouncement : public QAccessibleWidget {
 public:
    explicit AccessibleAnnouncement(QWidget* widget) : QAccessibleWidget(widget, QAccessible::Notification) {}
};

class AccessibleComboBox : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
    explicit AccessibleComboBox(QComboBox* box) : QAccessibleWidget(box, QAccessible::ComboBox) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? box().currentText() : QAccessibleWidget::text(kind);
    }
    int childCount() const override { return 1; }
    QAccessibleInterface* child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(box().view()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* list) const override {
        return list->object() == box().view() ? 0 : -1;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QStringList actionNames() const override { return {showMenuAction(), pressAction()}; }
    void doAction(const QString& name) override {
        if (actionNames().contains(name)) box().showPopup();
    }

    // The text is one piece that can't be edited or selected.
    QString text(int start, int end) const override { return box().currentText().mid(start, end - start); }
    int characterCount() const override { return static_cast<int>(box().currentText().size()); }
    void selection(int, int* start, int* end) const override { *start = *end = 0; }
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint&) const override { return -1; }
    void scrollToSubstring(int, int) override {}
    QString attributes(int, int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        return {};
    }

 private:
    QComboBox& box() const { return static_cast<QComboBox&>(*widget()); }
};

QAccessibleInterface* makeAccessible(const QString&, QObject* object) {
    auto* const widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr) return nullptr;
    if (auto* const box = qobject_cast<QComboBox*>(widget)) return new AccessibleComboBox(box);
    if (dynamic_cast<Announcement*>(widget) != nullptr) return new AccessibleAnnouncement(widget);
    const bool isTopLevel =
        widget->isWindow() && widget->metaObject() == &QWidget::staticMetaObject;  // no dialog or list
    return isTopLevel ? new QAccessibleWidget(widget, QAccessible::Window) : nullptr;
}

Announcement& announcementOf(QWidget& window) {
    for (QObject* const child : window.children()) {
        if (auto* const found = dynamic_cast<Announcement*>(child); found != nullptr) return *found;
    }
    return *new Announcement(&window);
}

}  // namespace

void describeWindowsToScreenReaders() {
    QAccessible::installFactory(makeAccessible);
}

void announce(QWidget& window, const QString& text) {
    if (text.isEmpty()) return;
    Announcement& announcement = announcementOf(window);
    announcement.setAccessibleName(text);
    QAccessibleEvent shows(&announcement, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shows);
}
