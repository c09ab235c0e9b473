#include "restore/game_comparison.h"

bool GameComparison::areSame(const LiveFile& file, const std::string& inPoint) {
    if (areKnownSame(file, inPoint)) return true;
    const auto id = points_.idOf(inPoint);
    if (!game_.hasSameBytes(file.path, points_, inPoint)) return false;
    if (id) same_[file.path] = {file.stamp, *id};
    return true;
}

bool GameComparison::areKnownSame(const LiveFile& file, const std::string& inPoint) const {
    const auto known = same_.find(file.path);
    if (known == same_.end() || known->second.stamp != file.stamp) return false;
    const auto id = points_.idOf(inPoint);
    return id && known->second.inPoint == *id;
}
