// The messages that wait for the message loop: what was posted, and the request to quit.
#ifndef PLATFORM_NATIVE_EVENTS_MESSAGE_QUEUE_H
#define PLATFORM_NATIVE_EVENTS_MESSAGE_QUEUE_H

#include "platform/native/api/windowing.h"

// A message with the present time and position of the pointer.
MSG makeMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// If `window` is destroyed before the message is dispatched, nothing receives it.
void postMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Takes the oldest message out of the queue, or WM_QUIT if the queue is empty and PostQuitMessage was called. False if
// there is neither.
bool takeMessage(MSG& message);

#endif
