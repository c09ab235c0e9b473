#include "start/preparing.h"

#include <array>
#include <vector>

#include "platform/child_process.h"
#include "platform/win32.h"
#include "prepare/preparation.h"
#include "start/earlier_version.h"
#include "start/readiness.h"
#include "ui/words.h"
#include "world/paths.h"
#include "world/program_files.h"

namespace {

// The file of skin sets that came with the program: beside it, or where Debian keeps what isn't a program.
std::string originalSkinSets() {
    constexpr const char* name = "skinsets-original.cfg";
    std::string beside = programBeside("tidewright");
    beside.erase(beside.find_last_of("\\/") + 1);
    const std::string shared = beside + "../../share/tidewright/" + name;
    return hasBytes(shared.c_str()) ? shared : beside + name;
}

std::string workingDirectory() {
    std::array<char, DirectoryText::capacity() + 1> directory{};
    const DWORD length = GetCurrentDirectoryA(directory.size(), directory.data());
    return length < directory.size() ? std::string(directory.data()) : "the player's own directory";
}

bool takeOverEarlierVersion(const std::string& simsDirectory, bool askNothing) {
    const std::vector<std::string> names = filesOfEarlierVersion(simsDirectory);
    if (names.empty()) return true;
    std::string text = "Version 1.1.0 of Tidewright kept these files in the game's directory:\n\n";
    for (const std::string& name : names) {
        text += "    " + name + "\n";
    }
    text += "\nThis version looks for them in\n" + workingDirectory() +
            "\n\nShall they be copied there? With Cancel they are made anew.";
    if (!confirm(text, askNothing)) return true;
    const std::string fault = takeOver(simsDirectory, names);
    if (!fault.empty()) say(fault, askNothing);
    return fault.empty();
}

bool agreesTo(const std::string& files, bool askNothing) {
    return files.empty() || confirm("These files will be made.\n\n" + files +
                                        "\nYour Sims and neighborhoods stay as they are. Shall the files be made?",
                                    askNothing);
}

}  // namespace

bool prepare(const std::string& simsDirectory, Editions editions, bool newTemplate, bool askNothing) {
    deleteLinksOfVersion100();
    if (!takeOverEarlierVersion(simsDirectory, askNothing)) return false;
    const std::string original = originalSkinSets();
    if (!agreesTo(plannedFiles(simsDirectory, workingDirectory(), newTemplate, editions), askNothing)) return false;
    const Preparation preparation = prepareGame(simsDirectory.c_str(), original, newTemplate, editions);
    if (!preparation.ready) {
        say(preparation.report + "\nNot everything is ready.", askNothing);
    } else if (newTemplate) {
        say(preparation.report, askNothing);
    }
    return preparation.ready;
}

bool sayWhetherReady(const std::string& simsDirectory, Editions editions, bool askNothing) {
    const Readiness readiness = checkReadiness(simsDirectory, editions == Editions::later);
    const std::string found = readiness.text();
    const char* const end = found.empty() ? "Everything is ready: Tidewright can start." : "Tidewright can start.";
    say((found.empty() ? found : found + "\n\n") + (readiness.isReady() ? end : "Not everything is ready."),
        askNothing);
    return readiness.isReady();
}

bool isGoodToGo(const std::string& simsDirectory, Editions editions, bool askNothing) {
    Readiness readiness = checkReadiness(simsDirectory, editions == Editions::later);
    std::erase_if(readiness.leftOvers, [](const LeftOver& leftOver) { return leftOver.isHarmless; });
    const std::string text = readiness.text();
    if (readiness.isReady()) {
        if (!text.empty()) say(text, askNothing);
        return true;
    }
    return confirm(text + "\n\nShall Tidewright start all the same?", askNothing);
}
