// The game's files while they are compared with points and replaced.
#ifndef RESTORE_LOCKED_GAME_H
#define RESTORE_LOCKED_GAME_H

#include <memory>
#include <string>
#include <vector>

#include "platform/files.h"
#include "restore/game_comparison.h"
#include "restore/point_files.h"
#include "restore/steps.h"

// Holds the lock of a save on the directory of each neighborhood that is meant, as long as it lives.
class LockedGame {
 public:
    // `points` must outlive this object.
    LockedGame(const std::string& simsDirectory, const FileTree& points, int neighborhood);

    // A sentence if a neighborhood is being saved or a directory can't be read; else empty.
    const std::string& refusal() const { return refusal_; }

    const FileTree& live() const { return comparison_.game(); }
    GameComparison& comparison() { return comparison_; }
    const NeighborhoodFiles& found() const { return found_; }

    Steps stepsTo(const RestorePoint& target) {
        return stepsFromLive(comparison_, found_.files, target, neighborhood_);
    }

    // Deletes new versions that other programs left half-done, where none can be writing now.
    void clearParts() const;

 private:
    void lockDirectories();

    std::string simsDirectory_;
    int neighborhood_;
    GameComparison comparison_;
    std::vector<std::unique_ptr<DirectoryLock>> locks_;
    std::vector<std::string> held_;
    NeighborhoodFiles found_;
    std::string refusal_;
};

#endif
