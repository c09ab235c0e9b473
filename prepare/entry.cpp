#include "platform/win32.h"
#include "prepare/program.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    return runProgram(__argc, __argv);
}
