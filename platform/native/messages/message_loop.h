// The message queue and the loops that run Qt's events.
#ifndef PLATFORM_NATIVE_MESSAGES_MESSAGE_LOOP_H
#define PLATFORM_NATIVE_MESSAGES_MESSAGE_LOOP_H

#include <functional>

#include "platform/native/api/windowing.h"

class QWidget;

// What Qt's events are run for just now: nothing (the program computes), GetMessageA, a box that waits for its answer,
// or a moment in which windows come to the screen.
enum class Loop { none, messages, modal, screen };
Loop innermostLoop();

void postMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Puts a message before all that wait, as the character of a key comes before the next key.
void postNextMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Drops what waits for a window that goes.
void forgetMessages(HWND window);

// Shows a box and runs Qt's events while `open` says so; windows are drawn meanwhile, messages of the queue wait. Over
// the box the windows show their own cursors; afterwards what SetCursor made of them shows again, and the window that
// had the keyboard before has it again.
void runModal(QWidget& box, const std::function<bool()>& open);

// Runs what Qt has to do to bring windows to the screen, but no clicks and keys: they wait for a loop. Does nothing
// inside a loop, which comes to it anyway.
void bringToScreen();

// The same until `done`, or for half a second at most: a screen that doesn't answer holds nobody up.
void waitForScreen(const std::function<bool()>& done);

#endif
