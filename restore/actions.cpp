#include "restore/actions.h"

#include <algorithm>
#include <vector>

#include "platform/files.h"
#include "restore/point_words.h"
#include "ui/sentence_parts.h"
#include "ui/words.h"
#include "world/running_game.h"

namespace {

std::string megabytes(std::int64_t bytes) {
    constexpr std::int64_t megabyte = 1'000'000;
    return withCommas((bytes + megabyte - 1) / megabyte) + " MB";
}

// The game may have been started since the window opened, or while a question was open.
bool isRefused(const PointsOfGame& game) {
    if (refuseBesideGame(game.onConsole) != 0) return true;
    if (!isEditorOpen()) return false;
    say("Tidewright is open. Please close it first.", game.onConsole);
    return true;
}

bool failWith(const GoneBack& gone, const PointsOfGame& game) {
    say(sentenceOf(gone), game.onConsole);
    return false;
}

std::string questionOf(const std::string& title, int neighborhood, const std::vector<std::string>& lines) {
    std::string question =
        "Go back to \"" + title + "\" in " +
        (neighborhood == allNeighborhoods ? "all neighborhoods" : "Neighborhood " + std::to_string(neighborhood)) +
        "?\n";
    for (const std::string& line : lines) {
        question += '\n' + line;
    }
    return question + "\n\nA restore point of the present is made first, so this can be undone here.";
}

}  // namespace

std::string titleOf(const std::string& name, const PointsOfGame& game) {
    const std::vector<RestorePoint> points = listRestorePoints(game.pointsDirectory);
    const auto point = std::ranges::find(points, name, &RestorePoint::name);
    if (game.onConsole || point == points.end()) return name;
    return pointTitles(points, presentTime())[static_cast<std::size_t>(point - points.begin())];
}

std::string sentenceOf(const MadePoint& made) {
    if (!made.needsRoom) return made.error;
    return made.error + " It needs " + megabytes(made.neededBytes) + ", and there are " +
           megabytes(made.availableBytes) + '.';
}

std::string sentenceOf(const GoneBack& gone) {
    return (gone.present.needsRoom ? sentenceOf(gone.present) : gone.error) +
           (gone.isBetween ? "\n\nGoing back was cut off half-way. Every file is whole. Start this program again to "
                             "complete or undo it."
                           : "\n\nNothing has changed.");
}

bool goBackAfterQuestion(const PointsOfGame& game, const RestorePoint& point, int neighborhood) {
    if (isRefused(game)) return false;
    const std::string refusal = refusalOf(point, game.simsDirectory);
    if (!refusal.empty()) return failWith({refusal, false, {}}, game);
    bool isSame = false;
    const std::vector<std::string> lines =
        comparisonLines(game.pointsDirectory, point, game.simsDirectory, neighborhood, &isSame);
    if (lines.size() == 1) {
        say(lines.front(), game.onConsole);
        return isSame;
    }
    const std::string question = questionOf(titleOf(point.name, game), neighborhood, lines);
    if (!confirm(question, game.onConsole) || isRefused(game)) return false;
    const GoneBack gone = goBack(game.pointsDirectory, point, game.simsDirectory, neighborhood);
    if (!gone.error.empty()) return failWith(gone, game);
    std::string done = "The game is back at the restore point \"" + titleOf(point.name, game) + "\".";
    if (!gone.present.name.empty()) {
        done += " To undo this, go back to \"" + titleOf(gone.present.name, game) + "\".";
    }
    say(done, game.onConsole);
    return true;
}

bool makePoint(const PointsOfGame& game) {
    if (isRefused(game)) return false;
    const MadePoint made = makeRestorePoint(game.pointsDirectory, game.simsDirectory, PointReason::byHand);
    say(made.name.empty() ? sentenceOf(made) : "The restore point \"" + titleOf(made.name, game) + "\" is made.",
        game.onConsole);
    return !made.name.empty();
}

bool deleteAfterQuestion(const PointsOfGame& game, const RestorePoint& point) {
    const std::string title = titleOf(point.name, game);
    const auto note = unfinishedGoingBack(game.pointsDirectory);
    if (note && note->needs(point.name)) {
        say("A going back that was cut off needs this restore point. It can be deleted when that is finished.",
            game.onConsole);
        return false;
    }
    if (!confirm("Delete the restore point \"" + title + "\"? You can't go back to it then.", game.onConsole)) {
        return false;
    }
    if (deleteRestorePoint(game.pointsDirectory, point.name)) return true;
    say("The restore point can't be deleted whole: " + title, game.onConsole);
    return false;
}

bool isCutOff(const PointsOfGame& game) {
    const auto note = unfinishedGoingBack(game.pointsDirectory);
    return note && isSameGame(note->simsDirectory, gameOf(game.simsDirectory));
}

bool finishEarlier(const PointsOfGame& game) {
    const DamagedNote damaged = damagedGoingBack(game.pointsDirectory);
    if (!damaged.sentence.empty()) say(damaged.sentence, game.onConsole);
    if (damaged.isInTheWay) return false;
    const auto note = unfinishedGoingBack(game.pointsDirectory);
    if (!note || !isCutOff(game)) return true;
    if (isRefused(game)) return false;
    const bool completes =
        confirm("Going back to \"" + titleOf(note->target, game) +
                    "\" was cut off. Every file is whole, but some are those of that "
                    "restore point and some are newer.\n\n[OK] goes back to it.\n[Cancel] goes to what was before.",
                game.onConsole);
    if (isRefused(game)) return false;
    GoneBack gone = finishGoingBack(game.pointsDirectory, completes ? Finish::complete : Finish::undo);
    // On the console there is no question in which the other way could be chosen.
    if (gone.isBetween && game.onConsole) {
        say(gone.error, game.onConsole);
        gone = finishGoingBack(game.pointsDirectory, Finish::undo);
    }
    if (gone.error.empty()) return true;
    say(gone.isBetween ? sentenceOf(gone) : gone.error, game.onConsole);
    return !gone.isBetween;
}
