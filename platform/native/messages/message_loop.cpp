#include "platform/native/messages/message_loop.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

#include "platform/native/api/gdi.h"
#include "platform/native/api/windowing.h"
#include "platform/native/events/event_pump.h"
#include "platform/native/events/message_queue.h"
#include "platform/native/messages/key_messages.h"
#include "platform/native/screen/cursor.h"
#include "platform/native/screen/display.h"
#include "platform/native/windowing/client_area.h"
#include "platform/native/windowing/window.h"

namespace {

HWND windowThatWaits() {
    for (HWND const window : allWindows()) {
        const ClientArea* const area = findWindow(window)->clientArea();
        if (area != nullptr && area->waits()) return window;
    }
    return nullptr;
}

// In Windows' order: posted messages, WM_QUIT, and only then WM_PAINT.
bool nextMessage(MSG& message) {
    if (takeMessage(message)) return true;
    HWND const window = windowThatWaits();
    if (window != nullptr) message = makeMessage(window, WM_PAINT, 0, 0);
    return window != nullptr;
}

void waitForMessage(MSG& message) {
    if (innermostLoop() == Loop::none) QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (;;) {
        runEvents(Loop::messages, QEventLoop::AllEvents);
        if (nextMessage(message)) return;
        runEvents(Loop::messages, QEventLoop::WaitForMoreEvents);
    }
}

}  // namespace

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
    // Window managers do this by themselves, but not every screen has one.
    if (before != nullptr) before->activateWindow();
}

BOOL GetMessageA(MSG* message, HWND, UINT, UINT) {
    if (hasDisplay()) {
        waitForMessage(*message);
    } else if (!takeMessage(*message)) {
        *message = makeMessage(nullptr, WM_QUIT, 0, 0);  // no further message can come
    }
    return message->message != WM_QUIT ? TRUE : FALSE;
}

// A key with a character has come as WM_CHAR already.
BOOL TranslateMessage(const MSG*) {
    return FALSE;
}

LRESULT DispatchMessageA(const MSG* message) {
    if (deliverKey(*message)) return 0;
    return message->hwnd == nullptr ? 0
                                    : SendMessageA(message->hwnd, message->message, message->wParam, message->lParam);
}

LRESULT DefWindowProcA(HWND window, UINT message, WPARAM, LPARAM) {
    if (message == WM_CLOSE) DestroyWindow(window);
    if (message == WM_PAINT) {
        PAINTSTRUCT paint{};
        if (BeginPaint(window, &paint) != nullptr) EndPaint(window, &paint);
    }
    return 0;
}
