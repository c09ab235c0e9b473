#include "platform/native/events/event_pump.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

namespace {

constexpr int longestWaitForScreen = 500;  // milliseconds
constexpr int screenStep = 10;

Loop innermost = Loop::none;

// Called after events that exclude the player's input. Qt keeps clicks and keys that come meanwhile, but the next wait
// doesn't see them: a click during a save would take effect only when the mouse moves.
void wakeForKeptInput() {
    QAbstractEventDispatcher::instance()->wakeUp();
}

}  // namespace

Loop innermostLoop() {
    return innermost;
}

LoopScope::LoopScope(Loop loop) : outer_(innermost) {
    innermost = loop;
}

LoopScope::~LoopScope() {
    innermost = outer_;
}

void runEvents(Loop loop, QEventLoop::ProcessEventsFlags flags) {
    const LoopScope scope(loop);
    QCoreApplication::processEvents(flags);
}

void bringToScreen() {
    if (innermost != Loop::none) return;
    runEvents(Loop::screen, QEventLoop::ExcludeUserInputEvents);
    wakeForKeptInput();
}

void waitForScreen(const std::function<bool()>& done) {
    QElapsedTimer timer;
    timer.start();
    QTimer tick;  // ends a wait for events that don't come
    tick.start(screenStep);
    while (!done() && !timer.hasExpired(longestWaitForScreen)) {
        runEvents(Loop::screen, QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
    }
    wakeForKeptInput();
}
