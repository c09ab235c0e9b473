// The About and the Credits dialog.
#ifndef SHELL_INFO_DIALOG_H
#define SHELL_INFO_DIALOG_H

#include "platform/win32.h"

// Shows the dialog resource `id` over the main window until the user closes it.
void showInfoDialog(int id);

INT_PTR CALLBACK infoDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

#endif
