#include "restore/point_store.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <optional>

#include "platform/part_names.h"
#include "restore/going_note.h"
#include "restore/point_files.h"
#include "restore/point_text.h"

namespace {

constexpr std::string_view textSuffix = ".txt";

// What a disk takes for a file beyond its bytes, as a rule.
constexpr std::int64_t clusterSize = 4096;

const std::string& made(const std::string& directory) {
    CreateDirectoryA(directory.c_str(), nullptr);  // usually it exists already
    return directory;
}

std::string textFile(const std::string& name) {
    return name + std::string(textSuffix);
}

bool isDirectory(const std::vector<TreeEntry>& entries, std::string_view name) {
    const auto found = std::ranges::find(entries, name, &TreeEntry::name);
    return found != entries.end() && found->kind == TreeEntry::Kind::directory;
}

// Deletes a directory with all that is in it. A link in it goes, and not what it leads to.
bool removeTree(const FileTree& tree, const std::string& directory) {
    const auto entries = tree.entriesOf(directory);
    if (!entries) return false;
    bool isGone = true;
    for (const TreeEntry& entry : *entries) {
        const std::string path = directory + '/' + entry.name;
        if (entry.kind == TreeEntry::Kind::directory) {
            isGone = removeTree(tree, path) && isGone;
        } else {
            isGone = (tree.removeFile(path) || tree.removeDirectory(path)) && isGone;
        }
    }
    return isGone && tree.removeDirectory(directory);
}

RestorePoint readPoint(const FileTree& tree, const std::string& name) {
    RestorePoint point;
    point.name = name;
    if (const auto text = textOfFile(tree, textFile(name))) {
        readPointText(*text, point);
    } else {
        point.damage = "The list of its files, \"" + textFile(name) + "\", is missing or can't be read.";
    }
    return point;
}

auto calendarOf(const SYSTEMTIME& time) {
    return std::array{time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond, time.wMilliseconds};
}

// " (2)" comes before " (10)".
bool isOlder(const RestorePoint& a, const RestorePoint& b) {
    const auto one = calendarOf(a.time), other = calendarOf(b.time);
    if (one != other) return one < other;
    return a.name.size() != b.name.size() ? a.name.size() < b.name.size() : a.name < b.name;
}

std::string nameAt(const SYSTEMTIME& utc) {
    SYSTEMTIME local = utc;
    SystemTimeToTzSpecificLocalTime(nullptr, &utc, &local);
    std::array<char, 64> name{};
    std::snprintf(name.data(), name.size(), "%04u-%02u-%02u %02u.%02u.%02u", local.wYear, local.wMonth, local.wDay,
                  local.wHour, local.wMinute, local.wSecond);
    return name.data();
}

// A name that no point has, whole or not.
std::string freeName(const std::vector<TreeEntry>& entries, const std::string& wanted) {
    const auto isTaken = [&](const std::string& name) {
        return std::ranges::any_of(entries, [&](const TreeEntry& entry) {
            return entry.name == name || entry.name == textFile(name) || fileBehind(entry.name) == name;
        });
    };
    std::string name = wanted;
    for (int number = 2; isTaken(name); ++number) {
        name = wanted + " (" + std::to_string(number) + ')';
    }
    return name;
}

// Makes one point, out of the live files and of the point before.
class Making {
 public:
    Making(GameComparison& comparison, const FileTree& points, const std::string& directory,
           const std::vector<RestorePoint>& all, RestorePoint& point)
        : comparison_(comparison),
          live_(comparison.game()),
          points_(points),
          directory_(directory),
          point_(point),
          part_(partName(point.name, 0)) {
        const auto before = std::ranges::find_if(all, [&](const RestorePoint& one) {
            return one.damage.empty() && isSameGame(one.simsDirectory, point.simsDirectory);
        });
        if (before != all.end()) before_ = &*before;
    }

    const std::string& part() const { return part_; }

    // The whole directory, under the part's name.
    bool make(const std::vector<LiveFile>& files, MadePoint& failure) {
        if (!points_.makeDirectories(part_)) {
            failure.error = failureOf("The directory can't be made", part_);
            return false;
        }
        if (!hasRoom(files, failure)) return false;
        for (const LiveFile& file : files) {
            if (!add(file, failure.error)) return false;
        }
        if (copies_ <= fewFiles || points_.syncAll("")) return true;
        failure.error = failureOf("The disk doesn't take the restore point", point_.name);
        return false;
    }

 private:
    // The file of the point before, if it is probably the same.
    const PointFile* like(const LiveFile& file) const {
        if (before_ == nullptr) return nullptr;
        const auto found = std::ranges::lower_bound(before_->files, file.path, {}, &PointFile::path);
        const bool isLike = found != before_->files.end() && found->path == file.path && found->stamp == file.stamp;
        return isLike ? &*found : nullptr;
    }

    bool hasRoom(const std::vector<LiveFile>& files, MadePoint& failure) const {
        const std::int64_t room = freeRoomIn(directory_.c_str());
        if (room < 0) return true;
        const bool links = canLink();
        std::int64_t needed = 0;
        for (const LiveFile& file : files) {
            const std::int64_t line = static_cast<std::int64_t>(file.path.size()) + 64;
            needed += line;
            if (!links || like(file) == nullptr) needed += file.stamp.size + clusterSize;
        }
        failure.neededBytes = needed;
        failure.availableBytes = room;
        failure.needsRoom = needed > room;
        if (failure.needsRoom) failure.error = "There isn't room on the disk for a restore point.";
        return !failure.needsRoom;
    }

    bool canLink() const {
        if (before_ == nullptr || before_->files.empty()) return false;
        const std::string tried = part_ + "/link";
        return points_.link(before_->name + '/' + before_->files.front().path, tried) && points_.removeFile(tried);
    }

    bool add(const LiveFile& file, std::string& error) {
        const std::string path = part_ + '/' + file.path;
        const std::string directory = path.substr(0, path.rfind('/'));
        if (!points_.makeDirectories(directory)) {
            error = failureOf("The directory can't be made", directory);
            return false;
        }
        const PointFile* const older = like(file);
        if (older != nullptr && linkTo(file, *older, path)) {
            point_.files.push_back(*older);
            return true;
        }
        const auto sync = ++copies_ <= fewFiles ? FileTree::Sync::now : FileTree::Sync::later;
        const auto checksum = copyFile(live_, file.path, points_, path, file.stamp, sync, error);
        if (!checksum) return false;
        if (live_.stampOf(file.path) != file.stamp) {
            error = "Another program is writing the file: " + FileTree::shown(file.path);
            return false;
        }
        point_.files.push_back({file.path, file.stamp, *checksum});
        return true;
    }

    bool linkTo(const LiveFile& file, const PointFile& older, const std::string& path) const {
        const std::string olderPath = before_->name + '/' + older.path;
        return comparison_.areSame(file, olderPath) && points_.link(olderPath, path);
    }

    GameComparison& comparison_;
    const FileTree& live_;
    const FileTree& points_;
    const std::string& directory_;  // of all points
    RestorePoint& point_;
    const RestorePoint* before_ = nullptr;
    std::string part_;
    std::size_t copies_ = 0;
};

}  // namespace

PointStore::PointStore(const std::string& directory)
    : directory_(made(directory)), lock_(directory.c_str()), tree_(directory, FileTree::Links::refused) {
    FileStatus status{};
    if (!queryFileStatus(directory.c_str(), status) || status.mode == writableFileMode ||
        status.mode == readOnlyFileMode) {
        refusal_ = "The directory of restore points can't be made: " + directory;
    } else if (lock_.isHeldByAnother()) {
        refusal_ = "Another program is working on the restore points.";
    } else if (lock_.isHeld()) {
        clearLeftOvers();
    }
}

// A directory that is set aside was a point that is being deleted, one that is a part never was one.
void PointStore::clearLeftOvers() const {
    const auto entries = tree_.entriesOf("");
    if (!entries) return;
    for (const TreeEntry& entry : *entries) {
        const std::string name = fileBehind(entry.name);
        if (name.empty() || entry.kind != TreeEntry::Kind::directory) continue;
        if (!isDirectory(*entries, name)) tree_.removeFile(textFile(name));
        removeTree(tree_, entry.name);
    }
    clearLeftOverParts(directory_.c_str());
}

MadePoint PointStore::make(const std::string& simsDirectory, PointReason reason, const SYSTEMTIME& time,
                           GameComparison& comparison) const {
    MadePoint made;
    const auto found = filesOfNeighborhoods(comparison.game(), made.error);
    if (!found) return made;
    // Going back must work from there, too.
    const bool isLost = found->files.empty() && reason != PointReason::goingBack;
    if (isLost) made.error = "There is no neighborhood in " + simsDirectory;
    const auto entries = tree_.entriesOf("");
    if (!entries) made.error = "The directory of restore points can't be read: " + directory_;
    if (!made.error.empty()) return made;
    const std::vector<RestorePoint> all = readPoints(tree_).value_or(std::vector<RestorePoint>());
    RestorePoint point;
    point.name = freeName(*entries, nameAt(time));
    point.time = time;
    point.reason = reason;
    point.sessionEnded = reason != PointReason::evening;
    point.simsDirectory = gameOf(simsDirectory);
    Making making(comparison, tree_, directory_, all, point);
    if (making.make(found->files, made) && writeText(point) && tree_.renameDirectory(making.part(), point.name) &&
        tree_.sync("")) {
        made.name = point.name;
        return made;
    }
    if (made.error.empty()) made.error = failureOf("The restore point can't be written", point.name);
    if (!remove(point.name)) removeTree(tree_, making.part());
    tree_.removeFile(textFile(point.name));
    return made;
}

void PointStore::deleteOldest(std::vector<std::string> needed) const {
    if (const auto note = readNote(tree_)) needed.insert(needed.end(), {note->target, note->before});
    std::vector<RestorePoint> points = readPoints(tree_).value_or(std::vector<RestorePoint>());
    std::erase_if(points, [](const RestorePoint& point) { return point.time.wYear == 0; });
    std::size_t count = points.size();
    for (auto oldest = points.rbegin(); oldest != points.rend() && count > keptPoints; ++oldest) {
        const bool isNeeded = std::ranges::find(needed, oldest->name) != needed.end();
        if (!isNeeded && remove(oldest->name)) --count;
    }
}

// First the name goes, in one step, then what it named.
bool PointStore::remove(const std::string& name) const {
    const std::string aside = asideName(name, 0);
    if (!FileTree::isName(name) || !tree_.renameDirectory(name, aside)) return false;
    tree_.sync("");
    tree_.removeFile(textFile(name));
    return removeTree(tree_, aside);
}

bool PointStore::writeText(const RestorePoint& point) const {
    return ::writeText(directory_, textFile(point.name), textOfPoint(point));
}

std::optional<std::vector<RestorePoint>> readPoints(const FileTree& tree) {
    const auto entries = tree.entriesOf("");
    if (!entries) return std::nullopt;
    std::vector<RestorePoint> points;
    for (const TreeEntry& entry : *entries) {
        const bool isPoint = entry.kind == TreeEntry::Kind::directory && fileBehind(entry.name).empty();
        if (isPoint) points.push_back(readPoint(tree, entry.name));
    }
    std::ranges::stable_sort(points, [](const RestorePoint& a, const RestorePoint& b) { return isOlder(b, a); });
    return points;
}
