#include "shell/info_dialog.h"

#include "ui/controls.h"

void showInfoDialog(int id) {
    DialogBoxParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(id), controls().mainWindow, infoDialogProc, 0);
}

INT_PTR CALLBACK infoDialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM /*lParam*/) {
    if (message == WM_INITDIALOG) return 1;
    if (message == WM_COMMAND && (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL)) {
        EndDialog(dialog, LOWORD(wParam));
        return 1;
    }
    return 0;
}
