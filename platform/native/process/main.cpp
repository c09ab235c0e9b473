// The process's entry. Prepares what Windows would have prepared, and calls WinMain.
#include <unistd.h>

#include <climits>
#include <string>

#include "platform/native/accessibility/accessible_objects.h"
#include "platform/native/api/system.h"
#include "platform/native/api/windowing.h"
#include "platform/native/drawing/device_context.h"
#include "platform/native/events/late_clicks.h"
#include "platform/native/messages/key_messages.h"
#include "platform/native/screen/cursor.h"
#include "platform/native/screen/display.h"
#include "platform/native/screen/scale.h"
#include "platform/native/windowing/window.h"

int __argc = 0;
char** __argv = nullptr;

HINSTANCE GetModuleHandleA(LPCSTR moduleName) {
    static char program;
    return moduleName == nullptr ? reinterpret_cast<HINSTANCE>(&program) : nullptr;
}

namespace {

// What this process was given stays with it: a browser that it starts would keep a lock until it is closed itself.
// Older kernels lack this call; there the lock is kept.
void keepDescriptors() {
    close_range(STDERR_FILENO + 1, UINT_MAX, CLOSE_RANGE_CLOEXEC);
}

void openScreen(char** arguments) {
    openDisplay(arguments);
    if (!hasDisplay()) return;
    updateScale();
    describeWindowsToScreenReaders();
    watchKeys();
    passLateClicks();
}

// The remaining windows are removed without messages.
void closeScreen() {
    if (!hasDisplay()) return;
    dropOverrideCursor();
    dropDeviceContexts();
    dropWindows();
    closeDisplay();
}

}  // namespace

int main(int argc, char** argv) {
    __argc = argc;
    __argv = argv;
    keepDescriptors();
    std::string commandLine;
    for (int i = 1; i < argc; ++i) {
        commandLine.append(i == 1 ? "" : " ").append(argv[i]);
    }
    openScreen(argv);
    const int result = WinMain(GetModuleHandleA(nullptr), nullptr, commandLine.data(), SW_SHOWNORMAL);
    closeScreen();
    return result;
}
