#include "restore/locked_game.h"

#include <algorithm>
#include <utility>

#include "platform/part_names.h"

LockedGame::LockedGame(const std::string& simsDirectory, const FileTree& points, int neighborhood)
    : simsDirectory_(simsDirectory), neighborhood_(neighborhood), comparison_(simsDirectory, points) {
    lockDirectories();
    if (!refusal_.empty()) return;
    if (auto found = filesOfNeighborhoods(live(), refusal_)) found_ = std::move(*found);
}

void LockedGame::lockDirectories() {
    const auto entries = live().entriesOf("");
    if (!entries) return;
    for (const TreeEntry& entry : *entries) {
        const int number = neighborhoodOf(entry.name + '/');
        const bool isMeant = entry.kind == TreeEntry::Kind::directory && number != 0;
        if (!isMeant || !isIn(neighborhood_, entry.name + '/')) continue;
        locks_.push_back(std::make_unique<DirectoryLock>((simsDirectory_ + entry.name).c_str()));
        if (locks_.back()->isHeldByAnother()) {
            refusal_ = "Another program is saving " + FileTree::shown(entry.name) + '.';
            return;
        }
        if (locks_.back()->isHeld()) held_.push_back(entry.name);
    }
}

void LockedGame::clearParts() const {
    for (std::string directory : found_.withParts) {
        if (std::ranges::find(held_, directory.substr(0, directory.find('/'))) == held_.end()) continue;
        std::ranges::replace(directory, '/', '\\');
        clearUnfinishedParts((simsDirectory_ + directory).c_str());
    }
}
