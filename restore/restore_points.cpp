#include "restore/restore_points.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

#include "restore/point_files.h"
#include "restore/point_store.h"

namespace {

// Sums by the file that they were taken of. Most files of a point are also those of another one.
class KnownSums {
 public:
    std::optional<std::uint32_t> sumOf(const FileTree& tree, const std::string& path, std::int64_t size) {
        const auto id = tree.idOf(path);
        if (!id) return std::nullopt;
        const auto [known, isNew] = sums_.try_emplace({*id, size});
        if (isNew) known->second = checksumOf(tree, path, size);
        return known->second;
    }

 private:
    std::map<std::pair<FileId, std::int64_t>, std::optional<std::uint32_t>> sums_;
};

std::string damageOf(const FileTree& tree, const RestorePoint& point, KnownSums& sums) {
    for (const PointFile& file : point.files) {
        const std::string path = point.name + '/' + file.path;
        const auto stamp = tree.stampOf(path);
        if (!stamp) return "A file is missing in it: " + FileTree::shown(file.path);
        if (stamp->size != file.stamp.size || sums.sumOf(tree, path, file.stamp.size) != file.checksum) {
            return "A file in it isn't as it was: " + FileTree::shown(file.path);
        }
    }
    return {};
}

}  // namespace

SYSTEMTIME presentTime() {
    SYSTEMTIME time{};
    GetSystemTime(&time);
    return time;
}

std::vector<RestorePoint> listRestorePoints(const std::string& pointsDirectory) {
    return readPoints(FileTree(pointsDirectory, FileTree::Links::refused));
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

MadePoint makeRestorePoint(const std::string& pointsDirectory, const std::string& simsDirectory, PointReason reason,
                           const SYSTEMTIME& time) {
    const PointStore store(pointsDirectory);
    if (store.isUnavailable()) return {{}, store.refusal()};
    MadePoint made = store.make(simsDirectory, reason, time);
    if (!made.name.empty()) store.deleteOldest({made.name});
    return made;
}

bool noteSessionEnded(const std::string& pointsDirectory, const std::string& name) {
    const PointStore store(pointsDirectory);
    if (store.isUnavailable()) return false;
    std::vector<RestorePoint> points = readPoints(store.tree());
    const auto point = std::ranges::find(points, name, &RestorePoint::name);
    if (point == points.end() || !point->damage.empty()) return false;
    point->sessionEnded = true;
    return store.writeText(*point);
}

bool deleteRestorePoint(const std::string& pointsDirectory, const std::string& name) {
    const PointStore store(pointsDirectory);
    return !store.isUnavailable() && store.remove(name);
}
