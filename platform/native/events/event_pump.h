// Runs Qt's events and knows for which purpose.
#ifndef PLATFORM_NATIVE_EVENTS_EVENT_PUMP_H
#define PLATFORM_NATIVE_EVENTS_EVENT_PUMP_H

#include <QEventLoop>
#include <functional>

// The loop that runs Qt's events: none while the program computes, else GetMessageA, a box that waits for its answer,
// or a call that brings windows to the screen.
enum class Loop { none, messages, modal, screen };
Loop innermostLoop();

// Makes `loop` the innermost loop while the object lives.
class LoopScope {
 public:
    explicit LoopScope(Loop loop);
    LoopScope(const LoopScope&) = delete;
    LoopScope& operator=(const LoopScope&) = delete;
    ~LoopScope();

 private:
    Loop outer_;
};

// Runs the events that wait, with `loop` as the innermost loop.
void runEvents(Loop loop, QEventLoop::ProcessEventsFlags flags);

// Runs what Qt has to do to bring windows to the screen. Clicks and keys wait for a loop. Does nothing inside a loop,
// which runs these events anyway.
void bringToScreen();

// The same until `done` returns true, for half a second at most in case the screen doesn't answer.
void waitForScreen(const std::function<bool()>& done);

#endif
