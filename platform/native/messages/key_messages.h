// Keys as messages, so that accelerators see them before the control that has the keyboard.
//
// While GetMessageA waits and neither a menu nor a box is open, each key of a window of ours becomes WM_KEYDOWN or
// WM_SYSKEYDOWN, with Alt, and WM_KEYUP or WM_SYSKEYUP. Left out: Shift, Control and Alt by themselves, and the keys of
// menus and buttons (Alt+F), which Qt acts on before. TranslateMessage follows a press that stands for a character
// with WM_CHAR or WM_SYSCHAR. Qt gets its event back when the last of a key's messages is dispatched, and only if no
// accelerator took it. `lParam` names the key press; the virtual key code in `wParam` is left out.
#ifndef PLATFORM_NATIVE_MESSAGES_KEY_MESSAGES_H
#define PLATFORM_NATIVE_MESSAGES_KEY_MESSAGES_H

#include "platform/native/api/windowing.h"

void watchKeys();

// False if the message is no key press that stands for a character.
bool translateKey(const MSG& message);

// False if the message is of no key.
bool deliverKey(const MSG& message);

#endif
