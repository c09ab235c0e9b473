#include "platform/win32.h"
#include "restore/program.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    return runRestore(__argc, __argv);
}
