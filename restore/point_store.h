// The directory of points, under the lock that each program asks for before it changes anything there.
#ifndef RESTORE_POINT_STORE_H
#define RESTORE_POINT_STORE_H

#include <optional>
#include <string>
#include <vector>

#include "platform/file_tree.h"
#include "platform/files.h"
#include "restore/game_comparison.h"
#include "restore/restore_points.h"

class PointStore {
 public:
    // Makes the directory if it doesn't exist, takes the lock, and clears away what a program that ended half-way left.
    // Where nothing can be locked, it goes on without, and clears nothing away.
    explicit PointStore(const std::string& directory);

    // Whether another program has the lock, or there is no such directory. Then nothing else here may be called.
    bool isUnavailable() const { return !refusal_.empty(); }
    const std::string& refusal() const { return refusal_; }  // a sentence

    const FileTree& tree() const { return tree_; }

    // Makes a point of the present. `comparison` is of the same game and these points.
    MadePoint make(const std::string& simsDirectory, PointReason reason, const SYSTEMTIME& time,
                   GameComparison& comparison) const;

    // Deletes the oldest points beyond `keptPoints`, but none of `needed`, and none that a going back that was cut off
    // needs.
    void deleteOldest(std::vector<std::string> needed) const;

    bool remove(const std::string& name) const;

    // Writes the text file of the point anew.
    bool writeText(const RestorePoint& point) const;

 private:
    void clearLeftOvers() const;

    std::string directory_;
    DirectoryLock lock_;
    FileTree tree_;
    std::string refusal_;
};

// As of listRestorePoints. No value if the directory can't be read.
std::optional<std::vector<RestorePoint>> readPoints(const FileTree& tree);

#endif
