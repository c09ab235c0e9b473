#include "platform/native/messages/message_loop.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QCursor>
#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <deque>
#include <optional>

#include "platform/native/messages/key_messages.h"
#include "platform/native/screen/cursor.h"
#include "platform/native/screen/display.h"
#include "platform/native/windowing/client_area.h"
#include "platform/native/windowing/window.h"

namespace {

constexpr int longestWaitForScreen = 500;  // milliseconds
constexpr int screenStep = 10;

Loop innermost = Loop::none;
std::deque<MSG> queue;
std::optional<int> quitCode;

MSG makeMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    static const QElapsedTimer sinceStart = [] {
        QElapsedTimer timer;
        timer.start();
        return timer;
    }();
    const QPoint pointer = hasDisplay() ? QCursor::pos() : QPoint();
    return {window, message, wParam, lParam, static_cast<DWORD>(sinceStart.elapsed()), {pointer.x(), pointer.y()}};
}

class LoopScope {
 public:
    explicit LoopScope(Loop loop) : outer_(innermost) { innermost = loop; }
    LoopScope(const LoopScope&) = delete;
    LoopScope& operator=(const LoopScope&) = delete;
    ~LoopScope() { innermost = outer_; }

 private:
    Loop outer_;
};

void runEvents(Loop loop, QEventLoop::ProcessEventsFlags flags) {
    const LoopScope scope(loop);
    QCoreApplication::processEvents(flags);
}

// Called after events that exclude the player's input. Qt keeps clicks and keys that come meanwhile, but the next wait
// doesn't see them: a click during a save would take effect only when the mouse moves.
void wakeForKeptInput() {
    QAbstractEventDispatcher::instance()->wakeUp();
}

HWND windowThatWaits() {
    for (HWND const window : allWindows()) {
        const ClientArea* const area = findWindow(window)->clientArea();
        if (area != nullptr && area->waits()) return window;
    }
    return nullptr;
}

bool takeFromQueue(MSG& message) {
    if (queue.empty()) return false;
    message = queue.front();
    queue.pop_front();
    return true;
}

// In Windows' order: what was posted, the end, and only then what waits to be drawn.
std::optional<BOOL> nextMessage(MSG& message) {
    if (takeFromQueue(message)) return TRUE;
    if (quitCode.has_value()) {
        message = makeMessage(nullptr, WM_QUIT, static_cast<WPARAM>(*quitCode), 0);
        quitCode.reset();
        return FALSE;
    }
    if (HWND const window = windowThatWaits(); window != nullptr) {
        message = makeMessage(window, WM_PAINT, 0, 0);
        return TRUE;
    }
    return std::nullopt;
}

}  // namespace

Loop innermostLoop() {
    return innermost;
}

void postMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    queue.push_back(makeMessage(window, message, wParam, lParam));
}

void postNextMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    queue.push_front(makeMessage(window, message, wParam, lParam));
}

void forgetMessages(HWND window) {
    std::erase_if(queue, [window](const MSG& message) { return message.hwnd == window; });
}

void runModal(QWidget& box, const std::function<bool()>& open) {
    const CursorPause ownCursors;
    const QPointer<QWidget> before = QApplication::activeWindow();
    const LoopScope scope(Loop::modal);
    box.show();
    while (open()) {
        HWND const waits = windowThatWaits();
        if (waits != nullptr) UpdateWindow(waits);
        QCoreApplication::processEvents(waits == nullptr ? QEventLoop::WaitForMoreEvents : QEventLoop::AllEvents);
    }
    // Window managers do it by themselves, but not every screen has one.
    if (before != nullptr) before->activateWindow();
}

void bringToScreen() {
    if (innermost != Loop::none) return;
    runEvents(Loop::screen, QEventLoop::ExcludeUserInputEvents);
    wakeForKeptInput();
}

void waitForScreen(const std::function<bool()>& done) {
    QElapsedTimer timer;
    timer.start();
    QTimer tick;  // wakes a wait for events that don't come
    tick.start(screenStep);
    while (!done() && !timer.hasExpired(longestWaitForScreen)) {
        runEvents(Loop::screen, QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
    }
    wakeForKeptInput();
}

BOOL GetMessageA(MSG* message, HWND, UINT, UINT) {
    if (!hasDisplay()) {
        // Nobody could bring a message to wait for.
        if (!quitCode.has_value()) PostQuitMessage(0);
        return *nextMessage(*message);
    }
    if (innermost == Loop::none) QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (;;) {
        runEvents(Loop::messages, QEventLoop::AllEvents);
        if (const std::optional<BOOL> result = nextMessage(*message); result.has_value()) return *result;
        runEvents(Loop::messages, QEventLoop::WaitForMoreEvents);
    }
}

BOOL TranslateMessage(const MSG* message) {
    return translateKey(*message) ? TRUE : FALSE;
}

LRESULT DispatchMessageA(const MSG* message) {
    if (deliverKey(*message)) return 0;
    return message->hwnd == nullptr ? 0
                                    : SendMessageA(message->hwnd, message->message, message->wParam, message->lParam);
}

void PostQuitMessage(int exitCode) {
    quitCode = exitCode;
}
