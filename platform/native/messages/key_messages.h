// Turns keys into messages, so that accelerators see them before the control with the keyboard focus.
//
// While GetMessageA waits and no menu or box is open, each key of the program's windows becomes WM_KEYDOWN and WM_KEYUP
// or, with Alt, WM_SYSKEYDOWN and WM_SYSKEYUP. Left out: Shift, Control and Alt by themselves, and the keys of menus
// and buttons (Alt+F), on which Qt acts first. TranslateMessage adds WM_CHAR or WM_SYSCHAR for a key with a character.
// Qt gets its event back when the last of a key's messages is dispatched, unless an accelerator took it. `lParam`
// identifies the key press; `wParam` has no virtual key code.
#ifndef PLATFORM_NATIVE_MESSAGES_KEY_MESSAGES_H
#define PLATFORM_NATIVE_MESSAGES_KEY_MESSAGES_H

#include "platform/native/api/windowing.h"

void watchKeys();

// False if the message is not the press of a key with a character.
bool translateKey(const MSG& message);

// False if the message is not about a key.
bool deliverKey(const MSG& message);

#endif
