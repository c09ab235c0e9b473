#include "start/program.h"

#include <string>

#include "platform/console.h"
#include "platform/files.h"
#include "platform/own_directory.h"
#include "platform/win32.h"
#include "start/editions.h"
#include "start/evening.h"
#include "start/evening_steps.h"
#include "start/mending.h"
#include "start/neighborhood_files.h"
#include "start/options.h"
#include "start/preparing.h"
#include "start/readiness.h"
#include "ui/words.h"
#include "version.h"
#include "world/game_check.h"
#include "world/game_search.h"
#include "world/program_files.h"
#include "world/running_game.h"

namespace {

constexpr int failed = 1;

int refuse(bool askNothing, const std::string& text) {
    say(text, askNothing);
    return failed;
}

int refuseOption(const std::string& fault) {
    writeToErrors(fault + "\n\nThe options are\n" + optionList());
    return failed;
}

int write(const std::string& text) {
    return writeToOutput(text) ? 0 : failed;
}

// What was left before the last evening was named at its start already.
bool settleLeftOvers(const std::string& simsDirectory, bool askNothing) {
    const LastEvening last = settleLastEvening(simsDirectory, askNothing);
    if (!last.isSettled) return false;
    mend(simsDirectory, askNothing);
    nameHarmless(simsDirectory, last.begin - coarsestTime, last.wasCutOff, askNothing);
    return true;
}

// With the player's own directory as the working directory.
int startOn(const std::string& simsDirectory, const std::string& ownDirectory, const DirectoryLock& gameLock,
            const Options& options) {
    const bool askNothing = options.askNothing;
    const bool opens = !options.prepareOnly && !options.newTemplate;
    // First of all: what is out of its place can't be looked at.
    if (opens && !settleLeftOvers(simsDirectory, askNothing)) return failed;
    // The rest would speak of files in there.
    if (neighborhoodsIn(simsDirectory).empty()) return refuse(askNothing, checkReadiness(simsDirectory).text());
    const Editions editions =
        editionsToOpen(simsDirectory, options.editions, ownDirectory + '\\' + settingsName, askNothing);
    const bool isPrepared = prepare(simsDirectory, editions, options.newTemplate, askNothing);
    if (!opens) {
        return isPrepared && sayWhetherReady(simsDirectory, editions, askNothing) ? 0 : failed;
    }
    if (!isPrepared || !isGoodToGo(simsDirectory, editions, askNothing)) return failed;
    return runEvening(simsDirectory, editions, gameLock, askNothing);
}

}  // namespace

int runStart(int argumentCount, char** arguments) {
    const Options options = optionsOf(argumentCount, arguments);
    if (!options.fault.empty()) return refuseOption(options.fault);
    if (options.help) return write("tidewright [OPTION...]\n\n" + optionList());
    if (options.version) return write("Tidewright " TIDEWRIGHT_VERSION "\n");
    const bool askNothing = options.askNothing;
    const OwnDirectory own = ownDirectory(ownDirectoryName);
    if (!own.fault.empty()) return refuse(askNothing, own.fault);
    DirectoryText simsDirectory;
    const GameWish wish{.directory = options.game, .askNothing = askNothing};
    if (const int refusal = findGame(wish, own.path, simsDirectory); refusal != 0) return refusal;
    if (SetCurrentDirectoryA(own.path.c_str()) == FALSE) return refuse(askNothing, own.path + " can't be entered.");
    const DirectoryLock lock(lockedDirectory(simsDirectory).c_str());
    if (const int refusal = refuseSecondStart(lock, askNothing); refusal != 0) return refusal;
    if (isEditorOpen()) {
        refuse(askNothing, "Tidewright's window is open already. Please close it, and start again.");
        return exitCode::gameRunning;
    }
    if (const int refusal = refuseBesideGame(askNothing); refusal != 0) return refusal;
    return startOn(simsDirectory.c_str(), own.path, lock, options);
}
