#include "shell/editor.h"

#include <array>
#include <cstdint>
#include <ctime>

#include "lifestage/random_generator.h"
#include "platform/win32.h"
#include "shell/main_window.h"
#include "shell/splash.h"
#include "shell/start_checks.h"
#include "ui/cursors.h"
#include "ui/status_line.h"
#include "world/neighborhoods.h"

int runEditor(RecordFormats formats, int showCommand) {
    loadCursors();
    randomGenerator().seed(static_cast<std::uint32_t>(std::time(nullptr)));
    std::array<char, DirectoryText::capacity() + 1> toolDirectory{};
    // If the path is too long, the buffer's contents are undefined.
    if (GetCurrentDirectoryA(toolDirectory.size(), toolDirectory.data()) >= toolDirectory.size()) {
        toolDirectory[0] = '\0';
    }

    DirectoryText simsDirectory;
    if (const int refusal = checkStart(simsDirectory, toolDirectory.data()); refusal != 0) return refusal;
    setStatusLine("Please wait while the data is loaded");
    if (!showSplashWindow()) return 0;
    loadNeighborhoods(simsDirectory.c_str(), toolDirectory.data(), formats);
    return runMainWindow(showCommand);
}
