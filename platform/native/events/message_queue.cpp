#include "platform/native/events/message_queue.h"

#include <QCursor>
#include <QElapsedTimer>
#include <deque>
#include <optional>

#include "platform/native/screen/display.h"

namespace {

std::deque<MSG> queue;
std::optional<int> quitCode;

}  // namespace

MSG makeMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    static const QElapsedTimer sinceStart = [] {
        QElapsedTimer timer;
        timer.start();
        return timer;
    }();
    const QPoint pointer = hasDisplay() ? QCursor::pos() : QPoint();
    return {window, message, wParam, lParam, static_cast<DWORD>(sinceStart.elapsed()), {pointer.x(), pointer.y()}};
}

void postMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    queue.push_back(makeMessage(window, message, wParam, lParam));
}

bool takeMessage(MSG& message) {
    if (!queue.empty()) {
        message = queue.front();
        queue.pop_front();
        return true;
    }
    if (!quitCode.has_value()) return false;
    message = makeMessage(nullptr, WM_QUIT, static_cast<WPARAM>(*quitCode), 0);
    quitCode.reset();
    return true;
}

void PostQuitMessage(int exitCode) {
    quitCode = exitCode;
}
