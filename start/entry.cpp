#include "platform/win32.h"
#include "start/program.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    return runStart(__argc, __argv);
}
