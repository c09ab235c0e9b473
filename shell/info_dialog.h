// The About and the Credits dialog.
#ifndef SHELL_INFO_DIALOG_H
#define SHELL_INFO_DIALOG_H

#include "platform/win32.h"

// Shows the dialog resource `id` over the main window until the user closes it.
void showInfoDialog(int id);

// The dialogs' procedure: OK, Escape and the close button end the dialog with the id of the button that they stand for.
INT_PTR CALLBACK infoDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

#endif
