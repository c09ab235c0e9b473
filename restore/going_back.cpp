#include "restore/going_back.h"

#include <algorithm>
#include <utility>

#include "restore/going_note.h"
#include "restore/locked_game.h"
#include "restore/point_check.h"
#include "restore/point_files.h"
#include "restore/point_store.h"
#include "restore/way.h"

namespace {

GoneBack refused(const std::string& error) {
    return {error, false, {}};
}

GoneBack stillBetween(const std::string& error) {
    return {error, true, {}};
}

const RestorePoint* named(const std::vector<RestorePoint>& points, const std::string& name) {
    const auto found = std::ranges::find(points, name, &RestorePoint::name);
    return found != points.end() ? &*found : nullptr;
}

// Makes the live files those of the target. The note is there before the first one changes and until all have.
GoneBack follow(const std::string& pointsDirectory, const PointStore& store, Way& way, const GoingNote& note,
                bool isNoted) {
    GoneBack result;
    result.isBetween = isNoted;
    if (!way.prepare(result.error)) return result;
    if (!isNoted && !writeNote(pointsDirectory, note)) {
        return refused(failureOf("The note can't be written", note.target));
    }
    result.isBetween = true;
    if (!way.take(result.error)) return result;
    if (deleteNote(store.tree())) {
        result.isBetween = false;
    } else {
        result.error = failureOf("The note can't be deleted", note.target);
    }
    return result;
}

// With a sentence in `damage` unless it is there and whole.
RestorePoint checkedPoint(const std::string& pointsDirectory, const std::vector<RestorePoint>& all,
                          const std::string& name) {
    const RestorePoint* const found = named(all, name);
    RestorePoint point = found != nullptr ? *found : RestorePoint{};
    if (found == nullptr) point.damage = "The restore point \"" + name + "\" is gone.";
    if (found != nullptr && !isWhole(pointsDirectory, point)) {
        point.damage = "The restore point \"" + name + "\" isn't whole. " + point.damage;
        if (!point.damage.ends_with('.')) point.damage += '.';
    }
    return point;
}

// Why the way must not begin; empty if it may.
std::string refusalOf(const PointStore& store, const std::string& simsDirectory, const RestorePoint& point) {
    const auto note = readNote(store.tree());
    // The game can be on a disk that is away, and still be between two states.
    if (note && !isSameGame(note->simsDirectory, gameOf(simsDirectory))) {
        return "Going back in the game in " + note->simsDirectory +
               " was cut off, and must be finished first. If that game is gone for good, delete the file "
               "\"going-back.txt\" beside the restore points.";
    }
    if (note) return "An earlier going back was cut off, and must be finished first.";
    return refusalOf(point, simsDirectory);
}

// Whether all that differs from the point lies in the note's neighborhood.
bool differsOnlyThere(const PointStore& store, const RestorePoint& point, const GoingNote& note) {
    GameComparison comparison(note.simsDirectory, store.tree());
    std::string error;
    const auto found = filesOfNeighborhoods(comparison.game(), error);
    return found && std::ranges::all_of(stepsFromLive(comparison, found->files, point, allNeighborhoods),
                                        [&](const Step& step) { return isIn(note.neighborhood, step.path); });
}

// Nothing is left of an evening that was cut off before once all neighborhoods that it changed went back. Where that
// can't be noted, the next start asks about it once more.
void settleEvenings(const PointStore& store, const GoingNote& note) {
    for (RestorePoint& point : readPoints(store.tree()).value_or(std::vector<RestorePoint>())) {
        const bool isOpen = point.damage.empty() && !point.sessionEnded;
        if (!isOpen || !isSameGame(point.simsDirectory, note.simsDirectory)) continue;
        if (note.neighborhood != allNeighborhoods && !differsOnlyThere(store, point, note)) continue;
        point.sessionEnded = true;
        store.writeText(point);
    }
}

// With the point of the present, `note.before`, made.
GoneBack leavePresent(const std::string& pointsDirectory, const PointStore& store, LockedGame& game,
                      const RestorePoint& target, const GoingNote& note) {
    const std::vector<RestorePoint> all = readPoints(store.tree()).value_or(std::vector<RestorePoint>());
    const RestorePoint* const present = named(all, note.before);
    if (present == nullptr || !present->damage.empty()) return refused("The restore point of the present is lost.");
    RestorePoint checked = target;
    checked.damage = damageBeside(store.tree(), target, *present, game.comparison());
    if (!checked.damage.empty()) return refused(refusalOf(checked, note.simsDirectory));
    game.clearParts();
    Way way(store.tree(), game.live(), target,
            stepsFromPresent(store.tree(), game.comparison(), game.found().files, *present, target, note.neighborhood));
    return follow(pointsDirectory, store, way, note, false);
}

// The answer where the wanted point is gone or spoiled. If the other one is, too, the note is deleted.
GoneBack lostTarget(const PointStore& store, const RestorePoint& target, const RestorePoint& other) {
    const bool isOver = !other.damage.empty() && deleteNote(store.tree());
    return {target.damage + (isOver ? " The files stay as they are." : ""), !isOver, {}};
}

}  // namespace

std::optional<PointComparison> compareWithPoint(const std::string& pointsDirectory, const RestorePoint& point,
                                                const std::string& simsDirectory, int neighborhood,
                                                std::string& error) {
    const FileTree points(pointsDirectory, FileTree::Links::refused);
    GameComparison files(simsDirectory, points);
    const auto found = filesOfNeighborhoods(files.game(), error);
    if (!found) return std::nullopt;
    const Steps steps = stepsFromLive(files, found->files, point, neighborhood);
    PointComparison comparison;
    for (const Step& step : steps) {
        if (step.kind == Step::Kind::come) {
            comparison.toCome.push_back(step.path);
        } else if (step.kind == Step::Kind::go) {
            comparison.toGo.push_back(step.path);
        } else if (step.kind == Step::Kind::stamp) {
            comparison.stamped.push_back(step.path);
        } else {
            comparison.changed.push_back(step.path);
        }
    }
    return comparison;
}

GoneBack goBack(const std::string& pointsDirectory, const RestorePoint& point, const std::string& simsDirectory,
                int neighborhood, const SYSTEMTIME& time) {
    const PointStore store(pointsDirectory);
    if (store.isUnavailable()) return refused(store.refusal());
    std::string refusal = refusalOf(store, simsDirectory, point);
    if (!refusal.empty()) return refused(refusal);
    LockedGame game(simsDirectory, store.tree(), neighborhood);
    if (!game.refusal().empty()) return refused(game.refusal());
    const Steps steps = game.stepsTo(point);
    refusal = swappedKind(game.live(), game.found(), steps);
    if (!refusal.empty()) return refused(refusal);
    if (steps.empty()) {
        RestorePoint checked = point;
        return isWhole(pointsDirectory, checked) ? GoneBack{} : refused(refusalOf(checked, simsDirectory));
    }

    const MadePoint made = store.make(simsDirectory, PointReason::goingBack, time, game.comparison());
    if (made.name.empty()) return {made.error, false, made};
    const GoingNote note{point.name, made.name, gameOf(simsDirectory), neighborhood};
    GoneBack result = leavePresent(pointsDirectory, store, game, point, note);
    // Nothing has changed then. A note that could be neither written to the disk nor deleted still needs the point.
    if (!result.error.empty() && !result.isBetween && !readNote(store.tree())) {
        store.remove(made.name);
        return result;
    }
    if (result.error.empty()) settleEvenings(store, note);
    result.present = made;
    store.deleteOldest({point.name, made.name});
    return result;
}

std::optional<GoingNote> unfinishedGoingBack(const std::string& pointsDirectory) {
    return readNote(FileTree(pointsDirectory, FileTree::Links::refused));
}

DamagedNote damagedGoingBack(const std::string& pointsDirectory) {
    const auto isBad = [](NoteState state) { return state == NoteState::damaged || state == NoteState::unreadable; };
    if (!isBad(stateOfNote(FileTree(pointsDirectory, FileTree::Links::refused)))) return {};
    const PointStore store(pointsDirectory);
    if (store.isUnavailable()) return {store.refusal(), true};
    const NoteState state = stateOfNote(store.tree());  // another program may have finished it
    if (!isBad(state)) return {};
    const std::string sentence = "A going back was cut off, and the note of it can't be read. ";
    if (state == NoteState::unreadable || !setNoteAside(store.tree())) {
        return {sentence + "Please allow reading and renaming the file \"going-back.txt\" beside the restore points.",
                true};
    }
    return {
        sentence + "It is called \"" + damagedNoteName +
            "\" now. Every file is whole, but some may be those of a restore point and some newer. To have all files "
            "as they were before, go back to the newest restore point that was made before going back.",
        false};
}

GoneBack finishGoingBack(const std::string& pointsDirectory, Finish how, const SYSTEMTIME& time) {
    const PointStore store(pointsDirectory);
    if (store.isUnavailable()) return stillBetween(store.refusal());
    const auto note = readNote(store.tree());
    if (!note) return {};
    const auto all = readPoints(store.tree());
    if (!all) return stillBetween(failureOf("The directory can't be read", pointsDirectory));
    std::string wanted = note->target, abandoned = note->before;
    if (how == Finish::undo) std::swap(wanted, abandoned);
    const RestorePoint target = checkedPoint(pointsDirectory, *all, wanted);
    if (!target.damage.empty()) return lostTarget(store, target, checkedPoint(pointsDirectory, *all, abandoned));
    if (!isSameGame(target.simsDirectory, note->simsDirectory)) return stillBetween("The note is of another game.");

    LockedGame game(note->simsDirectory, store.tree(), note->neighborhood);
    if (!game.refusal().empty()) return stillBetween(game.refusal());
    game.clearParts();
    const Steps steps = game.stepsTo(target);
    const RestorePoint* const other = named(*all, abandoned);
    MadePoint made;
    // A file that is neither point's was changed by another program meanwhile.
    if (haveCommonPath(steps, other != nullptr ? game.stepsTo(*other) : steps)) {
        made = store.make(note->simsDirectory, PointReason::goingBack, time, game.comparison());
        if (made.name.empty()) return {made.error, true, made};
    }
    Way way(store.tree(), game.live(), target, steps);
    GoneBack result = follow(pointsDirectory, store, way, *note, true);
    if (result.error.empty() && how == Finish::complete) settleEvenings(store, *note);
    result.present = made;
    return result;
}
