// The entry of the same program for later editions of the game.
#include "platform/win32.h"
#include "shell/editor.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int showCommand) {
    return runEditor(allFormats, showCommand);
}
