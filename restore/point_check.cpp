#include "restore/point_check.h"

#include <algorithm>

#include "restore/point_files.h"

namespace {

std::string missing(const PointFile& file) {
    return "A file is missing in it: " + FileTree::shown(file.path);
}

std::string changed(const PointFile& file) {
    return "A file in it isn't as it was: " + FileTree::shown(file.path);
}

}  // namespace

std::optional<std::uint32_t> KnownSums::sumOf(const FileTree& tree, const std::string& path, std::int64_t size) {
    const auto id = tree.idOf(path);
    if (!id) return std::nullopt;
    const auto [known, isNew] = sums_.try_emplace({*id, size});
    if (isNew) known->second = checksumOf(tree, path, size);
    return known->second;
}

std::string damageOf(const FileTree& points, const RestorePoint& point, KnownSums& sums) {
    for (const PointFile& file : point.files) {
        const std::string path = point.name + '/' + file.path;
        const auto stamp = points.stampOf(path);
        if (!stamp) return missing(file);
        if (stamp->size != file.stamp.size || sums.sumOf(points, path, file.stamp.size) != file.checksum) {
            return changed(file);
        }
    }
    return {};
}

std::string damageBeside(const FileTree& points, const RestorePoint& point, const RestorePoint& present,
                         const GameComparison& comparison) {
    for (const PointFile& file : point.files) {
        const std::string path = point.name + '/' + file.path;
        const auto other = std::ranges::lower_bound(present.files, file.path, {}, &PointFile::path);
        const bool isCommon = other != present.files.end() && *other == file;
        if (isCommon && comparison.areKnownSame({other->path, other->stamp}, path)) continue;
        if (!points.stampOf(path)) return missing(file);
        if (checksumOf(points, path, file.stamp.size) != file.checksum) return changed(file);
    }
    return {};
}
