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
    bool ifNeeded = false;     // show nothing if nothing is missing
    bool valid = true;
};

Options optionsOf(int count, char** arguments) {
    Options options;
    for (int i = 1; i < count; ++i) {
        const std::string_view argument = arguments[i];
        options.yes |= argument == "--yes";
        options.newTemplate |= argument == "--new-template";
        options.ifNeeded |= argument == "--if-needed";
        options.valid &= argument == "--yes" || argument == "--new-template" || argument == "--if-needed";
    }
    return options;
}

int showText(const std::string& text, int code) {
    MessageBoxA(nullptr, text.c_str(), boxTitle, MB_OK);
    return code;
}

// IDOK, also if there is nothing to ask.
int answerTo(const std::string& plannedFiles) {
    if (plannedFiles.empty()) return IDOK;
    const std::string text = "These files will be made.\n\n" + plannedFiles +
                             "\nYour Sims and neighborhoods stay as they are. Shall the files be made?";
    const int answer = MessageBoxA(nullptr, text.c_str(), boxTitle, MB_OKCANCEL);
    if (answer == 0) showText("Without a display this needs the option --yes.", somethingMissing);
    return answer;
}

}  // namespace

int runProgram(int argumentCount, char** arguments) {
    const Options options = optionsOf(argumentCount, arguments);
    if (!options.valid) {
        return showText(
            "The options are --yes, to ask nothing, --new-template, and --if-needed, to show nothing if nothing is "
            "missing.",
            somethingMissing);
    }
    std::array<char, DirectoryText::capacity() + 1> toolDirectory{};
    // The program would refuse to start in a directory with a longer path.
    const DWORD length = GetCurrentDirectoryA(toolDirectory.size(), toolDirectory.data());
    if (length == 0 || length >= toolDirectory.size()) {
        return showText("The path of this directory is too long.", somethingMissing);
    }
    DirectoryText simsDirectory;
    if (const int refusal = checkGame(simsDirectory); refusal != 0) return refusal;
    if (!isToolDirectory()) {
        return showText("Please start this program in the directory that it was unpacked to.\n\nIt was started in\n" +
                            std::string(toolDirectory.data()),
                        somethingMissing);
    }
    const std::string files = plannedFiles(simsDirectory.c_str(), toolDirectory.data(), options.newTemplate);
    if (!options.yes) {
        if (answerTo(files) != IDOK) return somethingMissing;
        // The question may have been open for long. What it named is what is prepared.
        DirectoryText directoryNow;
        if (const int refusal = checkGame(directoryNow); refusal != 0) return refusal;
    }
    const Preparation preparation = prepareGame(simsDirectory.c_str(), "skinsets-original.cfg", options.newTemplate);
    if (options.ifNeeded && files.empty() && preparation.ready) return 0;
    const char* const end =
        preparation.ready ? "\nEverything is ready: Tidewright can start." : "\nNot everything is ready.";
    return showText(preparation.report + end, preparation.ready ? 0 : somethingMissing);
}
