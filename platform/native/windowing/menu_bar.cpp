#include "platform/native/windowing/menu_bar.h"

#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <optional>

#include "platform/native/events/message_queue.h"
#include "platform/native/resources/menu_template.h"

namespace {

void addItems(QMenu& menu, const std::vector<MenuItem>& items, HWND window) {
    for (const MenuItem& item : items) {
        if (item.isPopup) {
            addItems(*menu.addMenu(item.text), item.items, window);
        } else if (item.text.isEmpty()) {
            menu.addSeparator();
        } else {
            QAction* const action = menu.addAction(item.text);
            action->setMenuRole(QAction::NoRole);
            action->setEnabled(!item.grayed);
            QObject::connect(action, &QAction::triggered,
                             [window, id = item.id] { postMessage(window, WM_COMMAND, MAKEWPARAM(id, 0), 0); });
        }
    }
}

}  // namespace

QMenuBar* createMenuBar(LPCSTR menuName, HWND window, QWidget* frame) {
    if (menuName == nullptr) return nullptr;
    const std::optional<std::vector<MenuItem>> items = loadMenuTemplate(menuName);
    if (!items.has_value()) return nullptr;
    auto* const bar = new QMenuBar(frame);
    for (const MenuItem& item : *items) {
        if (item.isPopup) addItems(*bar->addMenu(item.text), item.items, window);
    }
    QObject::connect(new QShortcut(Qt::Key_F10, bar), &QShortcut::activated, bar,
                     [bar] { bar->setActiveAction(bar->actions().value(0)); });
    return bar;
}
