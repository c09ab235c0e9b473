#include "restore/program.h"

#include <algorithm>
#include <optional>

#include "platform/console.h"
#include "platform/files.h"
#include "platform/own_directory.h"
#include "platform/win32.h"
#include "restore/actions.h"
#include "restore/escaped_text.h"
#include "restore/going_back_window.h"
#include "restore/point_words.h"
#include "restore/restore_options.h"
#include "ui/cursors.h"
#include "ui/words.h"
#include "version.h"
#include "world/game_search.h"
#include "world/program_files.h"
#include "world/running_game.h"

namespace {

constexpr int done = 0;
constexpr int failed = 1;

int fail(const std::string& sentence, bool onConsole) {
    say(sentence, onConsole);
    return failed;
}

// The game, with its own directory as the working directory. No value after words that say why.
std::optional<PointsOfGame> findPoints(const RestoreOptions& options, DirectoryText& simsDirectory) {
    // A list is read by other programs, which answer no question, and changes nothing.
    const bool onConsole = options.askNothing || options.list;
    const OwnDirectory own = ownDirectory(ownDirectoryName);
    if (!own.fault.empty()) {
        say(own.fault, onConsole);
        return std::nullopt;
    }
    const GameWish wish{.directory = options.game, .askNothing = onConsole, .changesNothing = options.list};
    if (findGame(wish, own.path, simsDirectory) != 0) return std::nullopt;
    if (SetCurrentDirectoryA(own.path.c_str()) == FALSE) {
        say("This directory can't be entered: " + own.path, onConsole);
        return std::nullopt;
    }
    // Relative to the own directory, so that the paths in it are short.
    return PointsOfGame{restorePointsDirectory, simsDirectory.c_str(), onConsole};
}

// Each point on one line: its name, which may have been changed to any other, is written as in its text file.
int list(const PointsOfGame& game) {
    std::string text;
    std::vector<RestorePoint> points = listRestorePoints(game.pointsDirectory);
    checkPoints(game.pointsDirectory, points);
    for (const RestorePoint& point : points) {
        const std::string reason = point.damage.empty() ? std::string(reasonText(point.reason)) : "not whole";
        text += escaped(point.name) + '\t' + (point.time.wYear != 0 ? utcText(point.time) : "") + '\t' + reason + '\n';
    }
    return writeToOutput(text) ? done : failed;
}

int goBackTo(const PointsOfGame& game, const RestoreOptions& options) {
    const std::vector<RestorePoint> points = listRestorePoints(game.pointsDirectory);
    const auto point =
        std::ranges::find_if(points, [&](const RestorePoint& one) { return escaped(one.name) == options.target; });
    if (point == points.end()) {
        return fail("There is no restore point of this name: " + options.target, game.onConsole);
    }
    RestorePoint checked = *point;
    isWhole(game.pointsDirectory, checked);
    return goBackAfterQuestion(game, checked, options.neighborhood) ? done : failed;
}

// What changes something, or shows the window. The game's lock is held meanwhile.
int change(const PointsOfGame& game, const RestoreOptions& options, const DirectoryText& simsDirectory) {
    const DirectoryLock lock(lockedDirectory(simsDirectory).c_str());
    if (refuseSecondStart(lock, game.onConsole) != 0) return failed;
    if (isEditorOpen()) return fail("Tidewright is open. Please close it first.", game.onConsole);
    if (refuseBesideGame(game.onConsole) != 0 || !finishEarlier(game)) return failed;
    if (options.make) return makePoint(game) ? done : failed;
    if (!options.target.empty()) return goBackTo(game, options);
    return showGoingBackWindow(game) && !isCutOff(game) ? done : failed;
}

}  // namespace

int runRestore(int argumentCount, char** arguments) {
    setBoxTitle("Tidewright Go Back");
    const RestoreOptions options = restoreOptionsOf(argumentCount, arguments);
    if (!options.fault.empty()) {
        writeToErrors(options.fault + "\n" + restoreOptionList());
        return failed;
    }
    if (options.help || options.version) {
        const std::string text = options.help ? restoreOptionList() : "tidewright-restore " TIDEWRIGHT_VERSION "\n";
        return writeToOutput(text) ? done : failed;
    }
    loadCursors();
    DirectoryText simsDirectory;
    const auto game = findPoints(options, simsDirectory);
    if (!game) return failed;
    return options.list ? list(*game) : change(*game, options, simsDirectory);
}
