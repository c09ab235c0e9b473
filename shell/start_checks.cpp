#include "shell/start_checks.h"

#include "platform/files.h"
#include "platform/win32.h"
#include "world/joined_text.h"

namespace {

// A skin that this program's package puts into the game's directory.
constexpr const char* installedSkin = "GameData\\Skins\\xskin-c601fa_amanda-HEAD-HEAD.skn";

int refuse(const char* text, const char* title, int code) {
    MessageBoxA(nullptr, text, title, MB_OK);
    PostQuitMessage(code);
    return code;
}

bool gameRuns() {
    for (const char* title : {"The Sims Hot Date", "The Sims House Party", "The Sims Livin' Large", "The Sims"}) {
        if (FindWindowA(nullptr, title) != nullptr) return true;
    }
    return false;
}

bool hasBytes(const char* path) {
    FileStatus status{};
    return queryFileStatus(path, status) && status.size >= 1;
}

}  // namespace

int checkStart(DirectoryText& simsDirectory, const char* toolDirectory) {
    if (findSimsDirectory(simsDirectory) != 0) {
        return refuse("Cannot find The Sims in the registry.  Please check the FAQ to see how to proceed.",
                      "Cannot find The Sims", exitCode::gameNotFound);
    }
    simsDirectory.append('\\');
    if (gameRuns()) {
        return refuse(
            "The Sims is currently running.  "
            "Please save and exit The Sims before using Marrowfen or any other Sims-modifying software.",
            "Exit The Sims", exitCode::gameRunning);
    }
    if (!hasBytes(joined<PathText>(simsDirectory, installedSkin).c_str())) {
        const auto text = joined<FixedText<399>>(
            "Tidewright appears to have been installed incorrectly.  It must be unzipped to your Sims directory.\n\n"
            "Your Sims directory appears to be\n",
            simsDirectory);
        return refuse(text.c_str(), "Installation Problem", exitCode::badInstallation);
    }
    // If the path is too long, the program couldn't open its files later, and no save would reach the disk.
    if (*toolDirectory == '\0' || !hasBytes("skinsets.cfg")) {
        return refuse(
            "Tidewright cannot find its config files.  "
            "It must be in the same directory as its skin config file and template files.",
            "Missing Config Files", exitCode::missingSkinSets);
    }
    return 0;
}
