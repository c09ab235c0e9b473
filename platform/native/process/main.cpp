// The process's entry: it prepares what Windows would have prepared, and calls the program's own.
#include <string>

#include "platform/native/api/system.h"
#include "platform/native/api/windowing.h"
#include "platform/native/screen/display.h"

int __argc = 0;
char** __argv = nullptr;

HINSTANCE GetModuleHandleA(LPCSTR moduleName) {
    static char program;
    return moduleName == nullptr ? reinterpret_cast<HINSTANCE>(&program) : nullptr;
}

int main(int argc, char** argv) {
    __argc = argc;
    __argv = argv;
    std::string commandLine;
    for (int i = 1; i < argc; ++i) {
        commandLine.append(i == 1 ? "" : " ").append(argv[i]);
    }
    openDisplay();
    const int result = WinMain(GetModuleHandleA(nullptr), nullptr, commandLine.data(), SW_SHOWNORMAL);
    closeDisplay();
    return result;
}
