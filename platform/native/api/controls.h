// The controls' styles and messages, message boxes and dialogs. A combo box is a QComboBox, a button a QPushButton, a
// message box a QMessageBox, and what isn't said here is as Qt has it. The wheel changes a combo box only while that
// has the focus. Screen readers call it by the label to its left.
#ifndef PLATFORM_NATIVE_API_CONTROLS_H
#define PLATFORM_NATIVE_API_CONTROLS_H

#include "platform/native/api/types.h"

// A combo box sends WM_COMMAND with its id and CBN_SELCHANGE when the user picks an entry, including the one that is
// already selected. Changes by messages send nothing. Left out: every other notification.
constexpr DWORD CBS_DROPDOWNLIST = 0x0003;
constexpr int CBN_SELCHANGE = 1;

// CB_ADDSTRING appends the text `lParam` and returns its index; it never selects. CB_DELETESTRING deletes the entry
// `wParam` and returns the number of entries left, or CB_ERR if there is no such entry; deleting the selected entry
// leaves no selection. CB_GETCURSEL returns CB_ERR without a selection; CB_SETCURSEL selects the entry `wParam` and
// returns it, or CB_ERR if there is no such entry.
constexpr UINT CB_ADDSTRING = 0x0143;
constexpr UINT CB_DELETESTRING = 0x0144;
constexpr UINT CB_GETCOUNT = 0x0146;
constexpr UINT CB_GETCURSEL = 0x0147;
constexpr UINT CB_SETCURSEL = 0x014E;
constexpr LRESULT CB_ERR = -1;

// A button sends WM_COMMAND with its id and BN_CLICKED.
constexpr int BN_CLICKED = 0;

constexpr int IDOK = 1;
constexpr int IDCANCEL = 2;
constexpr UINT MB_OK = 0x0000;
constexpr UINT MB_OKCANCEL = 0x0001;
constexpr UINT MB_DEFBUTTON1 = 0x0000;
constexpr UINT MB_DEFBUTTON2 = 0x0100;      // Enter answers with Cancel
constexpr UINT MB_SETFOREGROUND = 0x10000;  // no matter here: the window manager decides

// Shows a box and waits for the answer: IDOK or IDCANCEL. Closing a box with one button answers with that button. The
// box blocks every window of the program, with an owner or without one: the program waits for the answer, and a click
// elsewhere would start another command within this one. Without a display it writes the title and the text to standard
// error and returns 0.
int MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type);

// Shows a dialog of the resources, which blocks as a box does, and returns the value given to EndDialog, or -1 if it
// can't be shown. `procedure` receives WM_INITDIALOG and WM_COMMAND; Escape and the close button send WM_COMMAND with
// IDCANCEL. Supported items: texts, icons and push buttons.
INT_PTR DialogBoxParamA(HINSTANCE instance, LPCSTR templateName, HWND owner, DLGPROC procedure, LPARAM parameter);
BOOL EndDialog(HWND dialog, INT_PTR result);

#endif
