// The program's entry.
#include "platform/win32.h"
#include "shell/editor.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int showCommand) {
    return runEditor(baseFormats, showCommand);
}
