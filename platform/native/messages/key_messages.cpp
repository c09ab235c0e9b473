#include "platform/native/messages/key_messages.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QWidget>
#include <QWindow>
#include <map>
#include <memory>

#include "platform/native/base/text1252.h"
#include "platform/native/events/event_pump.h"
#include "platform/native/events/message_queue.h"
#include "platform/native/windowing/window.h"

namespace {

struct KeyEvent {
    QPointer<QWindow> window;
    std::unique_ptr<QEvent> event;
};

// By the number in the messages' `lParam`. Keys that accelerators took stay until the next key.
std::map<LPARAM, KeyEvent> keys;
LPARAM lastKey = 0;

HWND topLevelOf(const QWindow* window) {
    for (HWND const candidate : allWindows()) {
        const Window* const found = findWindow(candidate);
        if (found->clientArea() != nullptr && found->widget()->windowHandle() == window) return candidate;
    }
    return nullptr;
}

// 0 if the key has no character. With Alt some systems leave the text empty; Qt's code of a printable ASCII key is its
// character.
unsigned char characterOf(const QKeyEvent& event) {
    const std::string text = programText(event.text());
    if (text.size() == 1) return static_cast<unsigned char>(text[0]);
    const bool printable = event.key() > Qt::Key_Space && event.key() <= Qt::Key_AsciiTilde;
    return text.empty() && printable ? static_cast<unsigned char>(event.key()) : '\0';
}

UINT messageOf(const QKeyEvent& event, unsigned char character) {
    const bool system = (event.modifiers() & Qt::AltModifier) != 0;
    if (event.type() == QEvent::KeyRelease) return system ? WM_SYSKEYUP : WM_KEYUP;
    if (character != '\0') return system ? WM_SYSCHAR : WM_CHAR;
    return system ? WM_SYSKEYDOWN : WM_KEYDOWN;
}

// Returning such a key to Qt would close a menu that has opened since.
bool isModifier(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Shift:
        case Qt::Key_Control:
        case Qt::Key_Alt:
        case Qt::Key_AltGr:
        case Qt::Key_Meta:
            return true;
        default:
            return false;
    }
}

class KeyWatcher : public QObject {
 public:
    using QObject::QObject;

 protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) return false;
        if (innermostLoop() != Loop::messages) return false;
        if (QApplication::activePopupWidget() != nullptr) return false;
        auto* const window = qobject_cast<QWindow*>(object);
        HWND const topLevel = window == nullptr ? nullptr : topLevelOf(window);
        if (topLevel == nullptr) return false;
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (isModifier(key)) return false;
        keys[++lastKey] = {window, std::unique_ptr<QEvent>(event->clone())};
        const unsigned char character = characterOf(key);
        postMessage(topLevel, messageOf(key, character), character, lastKey);
        return true;
    }
};

bool isKeyMessage(UINT message) {
    return message >= WM_KEYDOWN && message <= WM_SYSCHAR;
}

// The watcher passes over it: outside of GetMessageA, the message loop isn't the innermost one.
void returnToQt(const KeyEvent& key) {
    if (key.window != nullptr) QCoreApplication::sendEvent(key.window, key.event.get());
}

}  // namespace

void watchKeys() {
    qApp->installEventFilter(new KeyWatcher(qApp));
}

bool deliverKey(const MSG& message) {
    if (!isKeyMessage(message.message)) return false;
    const auto found = keys.find(message.lParam);
    if (found == keys.end()) return true;
    const KeyEvent key = std::move(found->second);
    keys.erase(keys.begin(), std::next(found));
    returnToQt(key);
    return true;
}
