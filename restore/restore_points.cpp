#include "restore/restore_points.h"

#include <algorithm>

#include "platform/files.h"
#include "platform/path_text.h"
#include "restore/going_note.h"
#include "restore/point_check.h"
#include "restore/point_store.h"

SYSTEMTIME presentTime() {
    SYSTEMTIME time{};
    GetSystemTime(&time);
    return time;
}

std::vector<RestorePoint> listRestorePoints(const std::string& pointsDirectory) {
    return readPoints(FileTree(pointsDirectory, FileTree::Links::refused)).value_or(std::vector<RestorePoint>());
}

void checkPoints(const std::string& pointsDirectory, std::vector<RestorePoint>& points) {
    const FileTree tree(pointsDirectory, FileTree::Links::refused);
    KnownSums sums;
    for (RestorePoint& point : points) {
        if (point.damage.empty()) point.damage = damageOf(tree, point, sums);
    }
}

bool isWhole(const std::string& pointsDirectory, RestorePoint& point) {
    const FileTree tree(pointsDirectory, FileTree::Links::refused);
    KnownSums sums;
    if (point.damage.empty()) point.damage = damageOf(tree, point, sums);
    return point.damage.empty();
}

std::string gameOf(const std::string& simsDirectory) {
    return realPath(simsDirectory.substr(0, simsDirectory.find_last_not_of("\\/") + 1)) + '\\';
}

bool isSameGame(const std::string& one, const std::string& other) {
    return one == other || isSameFile(one.c_str(), other.c_str());
}

std::string refusalOf(const RestorePoint& point, const std::string& simsDirectory) {
    if (!point.damage.empty()) return "The restore point isn't whole. " + point.damage;  // its game may be unknown
    const std::string game = gameOf(simsDirectory);
    if (isSameGame(point.simsDirectory, game)) return {};
    return "This restore point is of the game in " + point.simsDirectory + ", not of the one in " + game + '.';
}

MadePoint makeRestorePoint(const std::string& pointsDirectory, const std::string& simsDirectory, PointReason reason,
                           const SYSTEMTIME& time) {
    const PointStore store(pointsDirectory);
    if (store.isUnavailable()) return {{}, store.refusal()};
    GameComparison comparison(simsDirectory, store.tree());
    MadePoint made = store.make(simsDirectory, reason, time, comparison);
    if (!made.name.empty()) store.deleteOldest({made.name});
    return made;
}

bool noteSessionEnded(const std::string& pointsDirectory, const std::string& name) {
    const PointStore store(pointsDirectory);
    if (store.isUnavailable()) return false;
    std::vector<RestorePoint> points = readPoints(store.tree()).value_or(std::vector<RestorePoint>());
    const auto point = std::ranges::find(points, name, &RestorePoint::name);
    if (point == points.end() || !point->damage.empty()) return false;
    point->sessionEnded = true;
    return store.writeText(*point);
}

bool deleteRestorePoint(const std::string& pointsDirectory, const std::string& name) {
    const PointStore store(pointsDirectory);
    if (store.isUnavailable()) return false;
    const auto note = readNote(store.tree());
    return !(note && note->needs(name)) && store.remove(name);
}
