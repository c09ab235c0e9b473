// The numbers of the program's resources and menu commands, for the resource script and the code that loads them.
// Macros, because the script's preprocessor knows nothing else.
#ifndef RESOURCES_IDS_H
#define RESOURCES_IDS_H

// Strings: the names of the two window classes.
#define IDS_MAIN_CLASS 109
#define IDS_SPLASH_CLASS 110

// The main window's menu and its accelerators share a number, as they share the window.
#define IDR_MAIN_MENU 109
#define IDR_MAIN_ACCELERATORS 109

#define IDD_ABOUT 103
#define IDD_CREDITS 139

// 107 holds a 32 x 32 and a 16 x 16 picture, 108 the 16 x 16 one alone, for the window's corner.
#define IDI_MAIN 107
#define IDI_SMALL 108

// 598 x 400 pixels of 24 bits.
#define IDB_SPLASH 134

// Menu commands. 32774 was never given to one.
#define IDM_ABOUT 104
#define IDM_EXIT_WITHOUT_SAVING 105
#define IDM_SAVE 32771
#define IDM_SAVE_AND_EXIT 32772
#define IDM_CREDITS 32773
#define IDM_ONLINE_HELP 32775
#define IDM_DONATE 32776
#define IDM_QUESTIONS 32777

#endif
