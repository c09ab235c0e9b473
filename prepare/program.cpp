#include "prepare/program.h"

#include <array>
#include <string>
#include <string_view>

#include "platform/win32.h"
#include "prepare/preparation.h"
#include "world/game_check.h"

namespace {

constexpr const char* boxTitle = "Prepare The Sims for Tidewright";

constexpr int somethingMissing = 1;

struct Options {
    bool yes = false;          // ask nothing
    bool newTemplate = false;  // replace a template that is there
    bool valid = true;
};

Options optionsOf(int count, char** arguments) {
    Options options;
    for (int i = 1; i < count; ++i) {
        const std::string_view argument = arguments[i];
        options.yes |= argument == "--yes";
        options.newTemplate |= argument == "--new-template";
        options.valid &= argument == "--yes" || argument == "--new-template";
    }
    return options;
}

int tell(const std::string& text, int code) {
    MessageBoxA(nullptr, text.c_str(), boxTitle, MB_OK);
    return code;
}

std::string question(std::string_view simsDirectory, std::string_view toolDirectory) {
    std::string text = "Tidewright needs a skin in the game's directory,\n";
    text.append(simsDirectory).append("\nand a template made of one of your own Sims, with a few other files, in\n");
    text.append(toolDirectory).append("\n\nYour Sims and neighborhoods stay as they are. Shall these files be made?");
    return text;
}

}  // namespace

int runProgram(int argumentCount, char** arguments) {
    const Options options = optionsOf(argumentCount, arguments);
    if (!options.valid) return tell("The options are --yes, to ask nothing, and --new-template.", somethingMissing);
    std::array<char, DirectoryText::capacity() + 1> toolDirectory{};
    // The program would refuse to start in a directory with a longer path.
    const DWORD length = GetCurrentDirectoryA(toolDirectory.size(), toolDirectory.data());
    if (length == 0 || length >= toolDirectory.size()) {
        return tell("The path of this directory is too long.", somethingMissing);
    }
    DirectoryText simsDirectory;
    if (const int refusal = checkGame(simsDirectory); refusal != 0) return refusal;
    if (!options.yes) {
        const std::string text = question(simsDirectory.view(), toolDirectory.data());
        const int answer = MessageBoxA(nullptr, text.c_str(), boxTitle, MB_OKCANCEL);
        if (answer == 0) tell("Without a display this needs the option --yes.", somethingMissing);
        if (answer != IDOK) return somethingMissing;
    }
    const Preparation preparation = prepareGame(simsDirectory.c_str(), options.newTemplate);
    const char* const end =
        preparation.ready ? "\nEverything is ready: Tidewright can start." : "\nTidewright isn't ready yet.";
    return tell(preparation.report + end, preparation.ready ? 0 : somethingMissing);
}
