#include "world/running_game.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "platform/titled_windows.h"
#include "ui/words.h"
#include "world/game_check.h"

namespace {

// The window of all programs that edit a game, with the kinds that they have on Windows, natively and under Wine.
constexpr const char* editorTitle = "Tidewright";
constexpr std::string_view editorKinds[] = {"tidewright", "tidewright-later", "tidewright.exe", "tidewright-later.exe"};

// Kinds of windows that show directories, each the name of a window class or its end.
constexpr std::string_view folderKinds[] = {"cabinetwclass", "explorewclass", "explorer.exe", "dolphin", "konqueror",
                                            "nautilus",      "thunar",        "nemo",         "caja",    "pcmanfm",
                                            "pcmanfm-qt",    "krusader",      "files",        "spacefm", "doublecmd",
                                            "rox",           "worker",        "xfe",          "mc"};
// Those of browsers, in the same way.
constexpr std::string_view browserKinds[] = {"mozillawindowclass",
                                             "chrome_widgetwin_1",
                                             "ieframe",
                                             "firefox",
                                             "firefox-esr",
                                             "chromium",
                                             "chrome",
                                             "google-chrome",
                                             "brave-browser",
                                             "opera",
                                             "vivaldi-stable",
                                             "epiphany",
                                             "falkon",
                                             "librewolf",
                                             "msedge",
                                             "microsoft-edge"};

bool isOneOf(std::string_view kind, auto& kinds) {
    return std::ranges::any_of(kinds, [&](std::string_view end) {
        // Some desktops write the whole name: "org.gnome.nautilus".
        return kind == end || (kind.ends_with(end) && kind[kind.size() - end.size() - 1] == '.');
    });
}

bool isGame(const std::string& kind) {
    return !isOneOf(kind, folderKinds) && !isOneOf(kind, browserKinds);
}

std::string adviceFor(const std::string& kind, const char* title) {
    const std::string window = std::string("\"") + title + "\"";
    if (isOneOf(kind, folderKinds)) {
        return "The window of a folder is called " + window +
               ". Tidewright can't tell it from the game. Please close that window, or go to another folder in it, and "
               "start again.";
    }
    if (isOneOf(kind, browserKinds)) {
        return "A page in your browser is called " + window +
               ". Tidewright can't tell it from the game. Please close that page, or go to another one, and start "
               "again.";
    }
    return "The Sims is running: a window is called " + window +
           ".\n\nPlease save and exit The Sims, and start again. The game would write its own version over what you "
           "change meanwhile.";
}

}  // namespace

int refuseBesideGame(bool onConsole) {
    std::string advice;
    for (const char* const title : gameTitles) {
        for (const std::string& kind : kindsOfWindowsTitled(title)) {
            // The game matters most: while it runs, closing another window is of no use.
            if (advice.empty() || isGame(kind)) advice = adviceFor(kind, title);
        }
    }
    if (advice.empty()) return 0;
    say(advice, onConsole);
    return exitCode::gameRunning;
}

bool isEditorOpen() {
    return std::ranges::any_of(kindsOfWindowsTitled(editorTitle), [](const std::string& kind) {
        return std::ranges::find(editorKinds, kind) != std::end(editorKinds);
    });
}

DirectoryText lockedDirectory(const DirectoryText& simsDirectory) {
    std::string_view directory = simsDirectory.view();
    while (directory.ends_with('\\')) {
        directory.remove_suffix(1);
    }
    return directory;
}

int refuseSecondStart(const DirectoryLock& gameLock, bool onConsole) {
    if (!gameLock.isHeldByAnother()) return 0;
    say("Tidewright is open already on this game. Please close it, and start again.", onConsole);
    return exitCode::gameRunning;
}
