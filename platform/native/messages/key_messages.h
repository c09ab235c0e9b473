// Turns keys into messages, so that accelerators see them before the control with the focus.
//
// While GetMessageA waits and no menu or box is open, each key of the program's windows becomes one message: WM_CHAR
// for the press of a key with a character, else WM_KEYDOWN, and WM_KEYUP for the release; with Alt it is WM_SYSCHAR,
// WM_SYSKEYDOWN or WM_SYSKEYUP. Left out: Shift, Control and Alt by themselves, and the keys of menus and buttons
// (Alt+F), on which Qt acts first. Qt gets its event back when the message is dispatched, unless an accelerator took
// it. `lParam` identifies the key event; `wParam` is the character, or 0.
#ifndef PLATFORM_NATIVE_MESSAGES_KEY_MESSAGES_H
#define PLATFORM_NATIVE_MESSAGES_KEY_MESSAGES_H

#include "platform/native/api/windowing.h"

void watchKeys();

// False if the message is not about a key.
bool deliverKey(const MSG& message);

#endif
