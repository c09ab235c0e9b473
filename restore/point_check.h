// Whether a point has all its files as they are noted.
#ifndef RESTORE_POINT_CHECK_H
#define RESTORE_POINT_CHECK_H

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>

#include "platform/file_tree.h"
#include "restore/game_comparison.h"
#include "restore/restore_points.h"

// Sums by the file that they were taken of. Most files of a point are also those of another one.
class KnownSums {
 public:
    // No value if the file can't be read or has another size.
    std::optional<std::uint32_t> sumOf(const FileTree& tree, const std::string& path, std::int64_t size);

 private:
    std::map<std::pair<FileId, std::int64_t>, std::optional<std::uint32_t>> sums_;
};

// A sentence that names the first file that isn't as noted; empty if all are.
std::string damageOf(const FileTree& points, const RestorePoint& point, KnownSums& sums);

// The same beside a point of the present, which was made just now with this comparison: files that are known to be the
// game's aren't read again.
std::string damageBeside(const FileTree& points, const RestorePoint& point, const RestorePoint& present,
                         const GameComparison& comparison);

#endif
