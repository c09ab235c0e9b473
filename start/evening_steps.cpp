#include "start/evening_steps.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <optional>
#include <utility>
#include <vector>

#include "platform/child_process.h"
#include "restore/actions.h"
#include "restore/going_back.h"
#include "restore/restore_points.h"
#include "start/cut_off.h"
#include "start/editions.h"
#include "start/left_overs.h"
#include "start/neighborhood_files.h"
#include "start/report.h"
#include "ui/words.h"
#include "world/program_files.h"
#include "world/running_game.h"

namespace {

constexpr int failed = 1;

std::string toGoBack(const RestorePoint& point, bool askNothing) {
    return "To go back: \"Go Back\" in the menu, or the program tidewright-restore. The restore point is called \"" +
           titleOf(point.name, {restorePointsDirectory, point.simsDirectory, askNothing}) + "\".";
}

constexpr const char* goOnWithoutPoint =
    "\n\nWithout one you can't go back to before this evening, and nothing will be said of what was saved. Shall "
    "Tidewright start all the same?";

Evening eveningSince(const std::string& point, const std::string& simsDirectory, std::int64_t begin) {
    return {.before = restorePointsDirectory + ("\\" + point) + "\\", .game = simsDirectory, .begin = begin};
}

std::vector<std::string> sentencesOnLeftOvers(const std::string& simsDirectory) {
    std::vector<std::string> sentences;
    for (const LeftOver& leftOver : findLeftOvers(simsDirectory)) {
        sentences.push_back(leftOver.sentence);
    }
    return sentences;
}

// The newest point that serves.
template <typename Serves>
std::optional<RestorePoint> findPoint(Serves serves) {
    std::vector<RestorePoint> points = listRestorePoints(restorePointsDirectory);
    const auto found = std::ranges::find_if(points, serves);
    if (found == points.end()) return std::nullopt;
    return std::move(*found);
}

// Since 1970, UTC.
std::int64_t secondsOf(const SYSTEMTIME& time) {
    using namespace std::chrono;
    const sys_days day = year(time.wYear) / month(time.wMonth) / std::chrono::day(time.wDay);
    return seconds(day.time_since_epoch() + hours(time.wHour) + minutes(time.wMinute) + seconds(time.wSecond)).count();
}

// False if the editor couldn't be started, which is said.
bool runEditor(Editions editions, const DirectoryLock& gameLock, bool askNothing, int& exitCode) {
    const std::string editor = programBeside(editorFor(editions));
    if (!editor.empty() && runAndWait(editor, ".", gameLock, exitCode)) return true;
    say(editor.empty() ? "The directory of this program has a name that it can't use. Please move it to another one."
                       : editor + " can't be started. Please install Tidewright again.",
        askNothing);
    return false;
}

bool sayGoneBack(const GoneBack& result, bool askNothing) {
    say(result.error.empty() ? "Your neighborhoods are as they were before." : sentenceOf(result), askNothing);
    return result.error.empty();
}

// The question may have been open for long, and the game been started meanwhile.
bool goBackTo(const RestorePoint& point, const std::string& simsDirectory, bool askNothing) {
    if (refuseBesideGame(askNothing) != 0) return false;
    return sayGoneBack(goBack(restorePointsDirectory, point, simsDirectory, allNeighborhoods), askNothing);
}

// False if the player wanted to go back and that failed.
bool report(const RestorePoint& point, const EveningReport& result, bool askNothing) {
    if (result.hasLoss && !result.wasPlayed) {
        const std::string text = result.text +
                                 "\n\n[OK] goes back to before this evening. [Cancel] keeps it as it is.\n\n" +
                                 toGoBack(point, askNothing);
        return !confirm(text, askNothing, false) || goBackTo(point, point.simsDirectory, askNothing);
    }
    if (!result.text.empty()) {
        std::string text = result.text;
        if (result.hasLoss) text += "\n\nGoing back would undo what was played meanwhile, too.";
        if (result.hasSaved || result.hasLoss) text += "\n\n" + toGoBack(point, askNothing);
        say(text, askNothing);
    }
    return true;
}

// The first directory of a neighborhood that the point has and the game hasn't; empty if all are there.
std::string missingDirectory(const RestorePoint& point, const std::string& simsDirectory) {
    for (const PointFile& file : point.files) {
        std::string directory = file.path.substr(0, file.path.find('/'));
        if (!isThere(simsDirectory + directory)) return directory;
    }
    return {};
}

// The point of the game's last evening. One from the future, when the clock was wrong, counts only while its evening
// isn't settled.
std::optional<RestorePoint> lastEveningOf(const std::string& game) {
    return findPoint([&, now = std::time(nullptr)](const RestorePoint& one) {
        const bool counts = !one.sessionEnded || secondsOf(one.time) <= now;
        return counts && one.reason == PointReason::evening && one.damage.empty() &&
               isSameGame(one.simsDirectory, game);
    });
}

// False if the player wanted to go back and that failed, or didn't want to go on.
bool settle(RestorePoint point, const std::string& simsDirectory, bool askNothing) {
    if (!isWhole(restorePointsDirectory, point)) {
        say("The last evening was cut off, and what became of it can't be told: its restore point isn't whole. " +
                point.damage,
            askNothing);
        return true;
    }
    const std::string missing = missingDirectory(point, simsDirectory);
    if (!missing.empty()) {
        return confirm("The last evening was cut off, and what became of it can't be told: " + missing +
                           " is missing. If it is on another disk, please bring that back first.\n\n[OK] goes on "
                           "without it. [Cancel] waits.",
                       askNothing, false, Buttons::cancelFirst);
    }
    const CutOffEvening cutOff = describeCutOff(eveningSince(point.name, simsDirectory, secondsOf(point.time)));
    if (cutOff.isAsBefore) return true;
    if (cutOff.wasPlayedSince) {
        say(cutOff.text + "\n\n" + toGoBack(point, askNothing), askNothing);
        return true;
    }
    const Buttons buttons = cutOff.isWhole ? Buttons::cancelFirst : Buttons::okFirst;
    return !confirm(cutOff.text + "\n\n[OK] goes back to before it. [Cancel] keeps it.", askNothing, false, buttons) ||
           goBackTo(point, simsDirectory, askNothing);
}

}  // namespace

LastEvening settleLastEvening(const std::string& simsDirectory, bool askNothing) {
    if (!finishEarlier({restorePointsDirectory, simsDirectory, askNothing})) return {.isSettled = false};
    const auto point = lastEveningOf(gameOf(simsDirectory));
    if (!point || neighborhoodsIn(simsDirectory).empty()) return {};
    LastEvening last{.begin = secondsOf(point->time), .wasCutOff = !point->sessionEnded};
    last.isSettled = !last.wasCutOff || settle(*point, simsDirectory, askNothing);
    if (last.wasCutOff && last.isSettled) noteSessionEnded(restorePointsDirectory, point->name);
    return last;
}

int runEvening(const std::string& simsDirectory, Editions editions, const DirectoryLock& gameLock, bool askNothing) {
    const MadePoint made = makeRestorePoint(restorePointsDirectory, simsDirectory, PointReason::evening);
    if (made.name.empty() && !confirm(sentenceOf(made) + goOnWithoutPoint, askNothing, false)) return failed;
    Evening evening = eveningSince(made.name, simsDirectory, std::time(nullptr));
    evening.known = sentencesOnLeftOvers(simsDirectory);
    int exitCode = failed;
    const bool ran = runEditor(editions, gameLock, askNothing, exitCode);
    const auto point = findPoint([&](const RestorePoint& one) { return one.name == made.name; });
    if (!ran || !point) return ran ? exitCode : failed;
    const EveningReport result = reportOn(evening);
    // The box may be open when the machine is switched off. Only where something is lost, the next start asks again.
    if (!result.hasLoss) noteSessionEnded(restorePointsDirectory, made.name);
    const bool isSettled = report(*point, result, askNothing);
    if (result.hasLoss && isSettled) noteSessionEnded(restorePointsDirectory, made.name);
    return exitCode;
}
