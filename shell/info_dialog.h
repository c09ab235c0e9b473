// The About and the Credits dialog.
#ifndef SHELL_INFO_DIALOG_H
#define SHELL_INFO_DIALOG_H

#include "platform/win32.h"

// Shows the dialog `id` of the resources until the user closes it.
void showInfoDialog(int id);

// The dialogs' procedure. OK ends the dialog with IDOK; Escape and the close button end it with IDCANCEL.
INT_PTR CALLBACK infoDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

#endif
