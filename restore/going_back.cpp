#include "restore/going_back.h"

#include <algorithm>
#include <memory>
#include <set>
#include <string_view>
#include <utility>

#include "platform/files.h"
#include "platform/letter_case.h"
#include "platform/part_names.h"
#include "restore/game_comparison.h"
#include "restore/going_note.h"
#include "restore/point_check.h"
#include "restore/point_files.h"
#include "restore/point_store.h"
#include "world/paths.h"

namespace {

// What must happen to one live file to make it the point's.
struct Step {
    enum class Kind { replace, stamp, come, go };

    Kind kind;
    std::string path;
    const PointFile* file = nullptr;  // the point's; null for one that goes
};
using Steps = std::vector<Step>;

bool isIn(int neighborhood, std::string_view path) {
    return neighborhood == allNeighborhoods || neighborhoodOf(path) == neighborhood;
}

// Walks over two lists sorted by path at once, and hands on each path with what the lists have for it.
template <typename First, typename Second, typename Take>
void merge(const std::vector<First>& first, const std::vector<Second>& second, Take take) {
    auto one = first.begin();
    auto other = second.begin();
    while (one != first.end() || other != second.end()) {
        const bool hasOne = one != first.end() && (other == second.end() || one->path <= other->path);
        const bool hasOther = other != second.end() && (one == first.end() || other->path <= one->path);
        take(hasOne ? &*one : nullptr, hasOther ? &*other : nullptr);
        if (hasOne) ++one;
        if (hasOther) ++other;
    }
}

// What makes `live`, which may be null, the point's `file`; no value if it is that already.
template <typename Now, typename AreSame>
std::optional<Step::Kind> stepFrom(const Now* live, const PointFile& file, AreSame areSame) {
    if (live == nullptr) return Step::Kind::come;
    if (live->stamp.size != file.stamp.size || !areSame(*live, file)) return Step::Kind::replace;
    if (live->stamp != file.stamp) return Step::Kind::stamp;
    return std::nullopt;
}

// The way from the files of `now` to those of the point. `areSame` compares the bytes of two files of one size.
template <typename Now, typename AreSame>
Steps stepsBetween(const std::vector<Now>& now, const std::vector<PointFile>& point, int neighborhood,
                   AreSame areSame) {
    Steps steps;
    merge(now, point, [&](const Now* live, const PointFile* file) {
        if (file != nullptr && isIn(neighborhood, file->path)) {
            if (const auto kind = stepFrom(live, *file, areSame)) steps.push_back({*kind, file->path, file});
        } else if (file == nullptr && live != nullptr && isIn(neighborhood, live->path)) {
            steps.push_back({Step::Kind::go, live->path});
        }
    });
    return steps;
}

// Where the disk ignores case, a file can be there in another spelling. It is replaced, and must not go then.
void joinSpellings(const FileTree& live, Steps& steps) {
    for (std::size_t i = 0; i < steps.size(); ++i) {
        if (steps[i].kind != Step::Kind::come) continue;
        const auto id = live.idOf(steps[i].path);
        if (!id) continue;
        const auto other = std::ranges::find_if(
            steps, [&](const Step& step) { return step.kind == Step::Kind::go && live.idOf(step.path) == id; });
        if (other == steps.end()) continue;
        steps[i].kind = Step::Kind::replace;
        if (static_cast<std::size_t>(other - steps.begin()) < i) --i;
        steps.erase(other);
    }
}

bool isNeighborhoodFile(const Step& step) {
    return equalInAnyCase(step.path.substr(step.path.find('/') + 1), neighborhoodFileName);
}

// The steps to the files of one point, in the order in which they are taken.
class Way {
 public:
    Way(const FileTree& points, const FileTree& live, const RestorePoint& target, Steps steps)
        : points_(points), live_(live), target_(target), steps_(std::move(steps)) {
        joinSpellings(live_, steps_);
        std::stable_partition(steps_.begin(), steps_.end(),
                              [](const Step& step) { return step.kind != Step::Kind::go; });
        const auto goes = std::ranges::find(steps_, Step::Kind::go, &Step::kind);
        std::stable_partition(steps_.begin(), goes, [](const Step& step) { return !isNeighborhoodFile(step); });
        parts_.resize(steps_.size());
    }
    Way(const Way&) = delete;
    Way& operator=(const Way&) = delete;

    ~Way() {
        for (const std::string& part : parts_) {
            if (!part.empty()) live_.removeFile(part);
        }
    }

    // Makes all new versions, complete and on the disk, without their names.
    bool prepare(std::string& error) {
        for (std::size_t i = 0; i < steps_.size(); ++i) {
            const Step& step = steps_[i];
            const bool needsPart = step.kind == Step::Kind::replace || step.kind == Step::Kind::come;
            if (needsPart && !makePart(*step.file, parts_[i], error)) return false;
        }
        if (areFew() || syncDisks()) return true;
        error = failureOf("The disk doesn't take the files of", target_.name);
        return false;
    }

    // After a failure some files may be those of the point already.
    bool take(std::string& error) {
        for (std::size_t i = 0; i < steps_.size(); ++i) {
            if (take(steps_[i], parts_[i])) continue;
            error = failureOf("The file can't be replaced or deleted", steps_[i].path);
            return false;
        }
        if (areNamesAlone() ? syncDirectories() : syncDisks()) return true;
        error = failureOf("The disk doesn't take the files of", target_.name);
        return false;
    }

 private:
    bool areFew() const { return steps_.size() <= fewFiles; }

    // Whether all that is left to sync are the names in the files' directories.
    bool areNamesAlone() const {
        return areFew() && !hasNewDirectory_ &&
               std::ranges::find(steps_, Step::Kind::stamp, &Step::kind) == steps_.end();
    }

    bool syncDirectories() const {
        std::set<std::string> directories;
        for (const Step& step : steps_) {
            directories.insert(step.path.substr(0, step.path.rfind('/')));
        }
        return std::ranges::all_of(directories, [&](const std::string& one) { return live_.sync(one); });
    }

    // Each neighborhood can be a link to another disk.
    bool syncDisks() const {
        std::set<std::string> directories;
        for (const Step& step : steps_) {
            directories.insert(step.path.substr(0, step.path.find('/')));
        }
        return std::ranges::all_of(directories, [&](const std::string& one) { return live_.syncAll(one); });
    }

    bool makePart(const PointFile& file, std::string& part, std::string& error) {
        const std::string directory = file.path.substr(0, file.path.rfind('/'));
        hasNewDirectory_ = hasNewDirectory_ || !live_.idOf(directory);
        if (!live_.makeDirectories(directory)) {
            error = failureOf("The directory can't be made", directory);
            return false;
        }
        std::optional<std::uint32_t> checksum;
        const std::string from = target_.name + '/' + file.path;
        // A part may be there that couldn't be cleared away.
        for (int number = 0; number < partNumbers && !checksum; ++number) {
            const std::string name = partName(file.path, number);
            if (live_.stampOf(name)) continue;
            checksum = copyFile(points_, from, live_, name, file.stamp,
                                areFew() ? FileTree::Sync::now : FileTree::Sync::later, error);
            if (!checksum) return false;
            part = name;
        }
        if (checksum == file.checksum) return true;
        error = "The restore point isn't whole: " + FileTree::shown(file.path);
        return false;
    }

    bool take(const Step& step, std::string& part) const {
        switch (step.kind) {
            case Step::Kind::stamp:
                return live_.setTimeAndMode(step.path, step.file->stamp);
            case Step::Kind::go:
                return live_.removeFile(step.path);
            default:
                break;
        }
        if (!live_.replace(part, step.path)) return false;
        part.clear();
        return true;
    }

    const FileTree& points_;
    const FileTree& live_;
    const RestorePoint& target_;
    Steps steps_;
    std::vector<std::string> parts_;  // by step; empty without one
    bool hasNewDirectory_ = false;
};

// The locks of a save on each neighborhood's directory.
class NeighborhoodLocks {
 public:
    NeighborhoodLocks(const FileTree& live, const std::string& simsDirectory, int neighborhood) {
        const auto entries = live.entriesOf("");
        if (!entries) return;
        for (const TreeEntry& entry : *entries) {
            const int number = neighborhoodOf(entry.name + '/');
            const bool isMeant = entry.kind == TreeEntry::Kind::directory && number != 0;
            if (!isMeant || !isIn(neighborhood, entry.name + '/')) continue;
            locks_.push_back(std::make_unique<DirectoryLock>((simsDirectory + entry.name).c_str()));
            if (locks_.back()->isHeldByAnother()) {
                refusal_ = "Another program is saving " + FileTree::shown(entry.name) + '.';
                return;
            }
            if (locks_.back()->isHeld()) held_.push_back(entry.name);
        }
    }

    const std::string& refusal() const { return refusal_; }

    // Clears away what other programs left half-done, where none can be writing now. The files of a point stay.
    void clearParts(const NeighborhoodFiles& found, const std::string& simsDirectory) const {
        for (std::string directory : found.withParts) {
            if (std::ranges::find(held_, directory.substr(0, directory.find('/'))) == held_.end()) continue;
            std::ranges::replace(directory, '/', '\\');
            clearLeftOverParts((simsDirectory + directory).c_str(), false);
        }
    }

 private:
    std::vector<std::unique_ptr<DirectoryLock>> locks_;
    std::vector<std::string> held_;
    std::string refusal_;
};

GoneBack refused(const std::string& error) {
    return {error, false, {}};
}

// Compares the game's files themselves.
Steps stepsFromLive(GameComparison& comparison, const std::vector<LiveFile>& found, const RestorePoint& target,
                    int neighborhood) {
    return stepsBetween(found, target.files, neighborhood, [&](const LiveFile& one, const PointFile& file) {
        return comparison.areSame(one, target.name + '/' + file.path);
    });
}

// A sentence if a file of the point can't come because something of another kind has its name, or that of a directory
// on the way to it. What a link leads to isn't the neighborhood's.
std::string swappedKind(const FileTree& live, const NeighborhoodFiles& found, const Steps& steps) {
    for (const Step& step : steps) {
        if (step.kind != Step::Kind::come) continue;
        if (live.idOf(step.path) && !live.stampOf(step.path)) {
            return "The game has a directory where the restore point has a file: " + FileTree::shown(step.path);
        }
        for (std::size_t slash = step.path.find('/'); slash != std::string::npos;
             slash = step.path.find('/', slash + 1)) {
            const std::string directory = step.path.substr(0, slash);
            const auto id = live.idOf(directory);
            if (!id) break;
            const bool isOwn = std::ranges::any_of(found.directories, [&](const std::string& one) {
                return one == directory || (equalInAnyCase(one, directory) && live.idOf(one) == id);
            });
            if (isOwn) continue;
            return "The game has a file or a link where the restore point has a directory: " +
                   FileTree::shown(directory);
        }
    }
    return {};
}

// Compares the point of the present, which has the same bytes as the game's files, with the target. What is known of
// the game's files needn't be read.
Steps stepsFromPresent(const FileTree& points, const GameComparison& comparison, const RestorePoint& present,
                       const RestorePoint& target, int neighborhood) {
    return stepsBetween(present.files, target.files, neighborhood, [&](const PointFile& one, const PointFile& file) {
        const std::string path = present.name + '/' + one.path, targetPath = target.name + '/' + file.path;
        if (one.checksum != file.checksum) return false;
        return comparison.areKnownSame({one.path, one.stamp}, targetPath) ||
               points.hasSameBytes(path, points, targetPath);
    });
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

std::string notWhole(const std::string& damage) {
    return "The restore point isn't whole. " + damage;
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
    if (!point.damage.empty()) return notWhole(point.damage);  // its game may be unknown
    return refusalOfAnotherGame(point, simsDirectory);
}

// Whether some file is neither the target's nor that of before: another program has changed it meanwhile.
bool haveOthersChanged(const Steps& toTarget, const Steps& toBefore) {
    std::set<std::string_view> paths;
    for (const Step& step : toBefore) {
        paths.insert(step.path);
    }
    return std::ranges::any_of(toTarget, [&](const Step& step) { return paths.contains(step.path); });
}

}  // namespace

std::optional<PointComparison> compareWithPoint(const std::string& pointsDirectory, const RestorePoint& point,
                                                const std::string& simsDirectory, int neighborhood,
                                                std::string& error) {
    const FileTree points(pointsDirectory, FileTree::Links::refused);
    GameComparison files(simsDirectory, points);
    const auto found = filesOfNeighborhoods(files.game(), error);
    if (!found) return std::nullopt;
    Steps steps = stepsFromLive(files, found->files, point, neighborhood);
    joinSpellings(files.game(), steps);
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
    const std::string refusal = refusalOf(store, simsDirectory, point);
    if (!refusal.empty()) return refused(refusal);
    GameComparison comparison(simsDirectory, store.tree());
    const FileTree& live = comparison.game();
    const NeighborhoodLocks locks(live, simsDirectory, neighborhood);
    if (!locks.refusal().empty()) return refused(locks.refusal());
    std::string error;
    const auto found = filesOfNeighborhoods(live, error);
    if (!found) return refused(error);
    Steps steps = stepsFromLive(comparison, found->files, point, neighborhood);
    joinSpellings(live, steps);
    error = swappedKind(live, *found, steps);
    if (!error.empty()) return refused(error);
    if (steps.empty()) {
        RestorePoint checked = point;
        return isWhole(pointsDirectory, checked) ? GoneBack{} : refused(notWhole(checked.damage));
    }

    const MadePoint made = store.make(simsDirectory, PointReason::goingBack, time, comparison);
    if (made.name.empty()) return {made.error, false, made};
    const std::vector<RestorePoint> all = readPoints(store.tree()).value_or(std::vector<RestorePoint>());
    const RestorePoint* const present = named(all, made.name);
    if (present == nullptr || !present->damage.empty()) return refused("The restore point of the present is lost.");
    const std::string damage = damageBeside(store.tree(), point, *present, comparison);
    if (!damage.empty()) {
        store.remove(made.name);
        return refused(notWhole(damage));
    }
    locks.clearParts(*found, simsDirectory);
    Way way(store.tree(), live, point, stepsFromPresent(store.tree(), comparison, *present, point, neighborhood));
    GoneBack result =
        follow(pointsDirectory, store, way, {point.name, made.name, gameOf(simsDirectory), neighborhood}, false);
    // Nothing has changed then. A note that could be neither written to the disk nor deleted still needs the point.
    if (!result.error.empty() && !result.isBetween && !readNote(store.tree())) {
        store.remove(made.name);
        return result;
    }
    result.present = made;
    store.deleteOldest({point.name, made.name});
    return result;
}

std::optional<GoingNote> unfinishedGoingBack(const std::string& pointsDirectory) {
    return readNote(FileTree(pointsDirectory, FileTree::Links::refused));
}

std::string damagedGoingBack(const std::string& pointsDirectory) {
    if (!setDamagedNoteAside(FileTree(pointsDirectory, FileTree::Links::refused))) return {};
    return std::string("A going back was cut off, and the note of it can't be read. It is called \"") +
           damagedNoteName +
           "\" now. Every file is whole, but some may be those of a restore point and some newer. To have all files as "
           "they were before, go back to the newest restore point that was made before going back.";
}

GoneBack finishGoingBack(const std::string& pointsDirectory, Finish how, const SYSTEMTIME& time) {
    const PointStore store(pointsDirectory);
    if (store.isUnavailable()) return {store.refusal(), true, {}};
    const auto note = readNote(store.tree());
    if (!note) return {};
    const auto read = readPoints(store.tree());
    if (!read) return {failureOf("The directory can't be read", pointsDirectory), true, {}};
    const std::vector<RestorePoint>& all = *read;
    RestorePoint target = checkedPoint(pointsDirectory, all, how == Finish::complete ? note->target : note->before);
    if (!target.damage.empty()) {
        const bool isOver =
            !checkedPoint(pointsDirectory, all, how == Finish::complete ? note->before : note->target).damage.empty() &&
            deleteNote(store.tree());
        return {target.damage + (isOver ? " The files stay as they are." : ""), !isOver, {}};
    }
    const RestorePoint* const other = named(all, how == Finish::complete ? note->before : note->target);
    if (!isSameGame(target.simsDirectory, note->simsDirectory)) return {"The note is of another game.", true, {}};
    GameComparison comparison(note->simsDirectory, store.tree());
    const FileTree& live = comparison.game();
    const NeighborhoodLocks locks(live, note->simsDirectory, note->neighborhood);
    if (!locks.refusal().empty()) return {locks.refusal(), true, {}};
    std::string error;
    const auto found = filesOfNeighborhoods(live, error);
    if (!found) return {error, true, {}};
    locks.clearParts(*found, note->simsDirectory);
    const Steps steps = stepsFromLive(comparison, found->files, target, note->neighborhood);
    const Steps toOther =
        other != nullptr ? stepsFromLive(comparison, found->files, *other, note->neighborhood) : steps;
    MadePoint made;
    if (haveOthersChanged(steps, toOther)) {
        made = store.make(note->simsDirectory, PointReason::goingBack, time, comparison);
        if (made.name.empty()) return {made.error, true, made};
    }
    Way way(store.tree(), live, target, steps);
    GoneBack result = follow(pointsDirectory, store, way, *note, true);
    // As if it had never begun: the point of before would hide that an evening before it was cut off.
    const bool isUndone = how == Finish::undo && result.error.empty() && made.name.empty();
    if (isUndone) store.remove(note->before);
    result.present = made;
    return result;
}
