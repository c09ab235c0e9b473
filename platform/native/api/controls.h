// The controls' styles and messages, message boxes and dialogs. A combo box is a QComboBox, a button a QPushButton, a
// box a QMessageBox: keyboard, wheel, screen readers and scaling are Qt's.
#ifndef PLATFORM_NATIVE_API_CONTROLS_H
#define PLATFORM_NATIVE_API_CONTROLS_H

#include "platform/native/api/types.h"

// A combo box sends WM_COMMAND with its id and CBN_SELCHANGE when the user picks an entry, also the one that is
// selected already; no message of the program's own brings it. Left out: every other notification.
constexpr DWORD CBS_DROPDOWNLIST = 0x0003;
constexpr int CBN_SELCHANGE = 1;

// CB_ADDSTRING: `lParam` is the text; returns its index. A list that was empty stays without a selection.
// CB_DELETESTRING: `wParam` is the index; returns the number of entries left, CB_ERR for no such entry. Deleting the
// selected entry leaves no selection. CB_GETCOUNT; CB_GETCURSEL: CB_ERR for no selection.
constexpr UINT CB_ADDSTRING = 0x0143;
constexpr UINT CB_DELETESTRING = 0x0144;
constexpr UINT CB_GETCOUNT = 0x0146;
constexpr UINT CB_GETCURSEL = 0x0147;
constexpr LRESULT CB_ERR = -1;

// A button sends WM_COMMAND with its id and BN_CLICKED.
constexpr int BN_CLICKED = 0;

constexpr int IDOK = 1;
constexpr int IDCANCEL = 2;
constexpr UINT MB_OK = 0x0000;
constexpr UINT MB_OKCANCEL = 0x0001;

// Shows a box and waits for its answer: IDOK or IDCANCEL; closing a box with one button answers with that button. The
// box blocks `owner`. Without an owner it blocks every window of the program (on Windows none): the program waits for
// the answer, and a click elsewhere would start the next command inside this one. Without a display the title and the
// text go to standard error, and the result is 0.
int MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type);

// Shows a dialog of the resources, modal to `owner`, and returns what EndDialog was given; -1 if it can't be shown.
// `procedure` receives WM_INITDIALOG and WM_COMMAND. Known contents: texts, icons, push buttons; Escape and the close
// button send WM_COMMAND with IDCANCEL.
INT_PTR DialogBoxParamA(HINSTANCE instance, LPCSTR templateName, HWND owner, DLGPROC procedure, LPARAM parameter);
BOOL EndDialog(HWND dialog, INT_PTR result);

#endif
