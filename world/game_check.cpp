#include "world/game_check.h"

#include "platform/win32.h"

namespace {

bool gameRuns() {
    for (const char* const title : gameTitles) {
        if (FindWindowA(nullptr, title) != nullptr) return true;
    }
    return false;
}

}  // namespace

int refuseStart(const char* text, const char* title, int code) {
    MessageBoxA(nullptr, text, title, MB_OK);
    PostQuitMessage(code);
    return code;
}

int checkGame(DirectoryText& simsDirectory) {
    if (findSimsDirectory(simsDirectory) != 0) {
        return refuseStart("Cannot find The Sims in the registry.  Please check the FAQ to see how to proceed.",
                           "Cannot find The Sims", exitCode::gameNotFound);
    }
    simsDirectory.append('\\');
    if (gameRuns()) {
        return refuseStart(
            "The Sims is currently running.  "
            "Please save and exit The Sims before using Marrowfen or any other Sims-modifying software.",
            "Exit The Sims", exitCode::gameRunning);
    }
    return 0;
}
