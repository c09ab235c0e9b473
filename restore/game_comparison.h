// Comparing the game's files with those of restore points.
#ifndef RESTORE_GAME_COMPARISON_H
#define RESTORE_GAME_COMPARISON_H

#include <map>
#include <string>

#include "platform/file_tree.h"
#include "restore/point_files.h"

// A file of a point usually belongs to other points, too. It is compared once for all of them.
class GameComparison {
 public:
    // `points` must outlive this object.
    GameComparison(const std::string& simsDirectory, const FileTree& points)
        : game_(simsDirectory, FileTree::Links::followed), points_(points) {}

    const FileTree& game() const { return game_; }

    // Whether the game's file and that of a point, by its path in the directory of points, have the same bytes.
    // `file.stamp` is of just now: with another one than before, the file is read again.
    bool areSame(const LiveFile& file, const std::string& inPoint);

    // Whether areSame has found that out already for this stamp.
    bool areKnownSame(const LiveFile& file, const std::string& inPoint) const;

 private:
    struct Same {
        FileStamp stamp;
        FileId inPoint;
        bool operator==(const Same&) const = default;
    };

    FileTree game_;
    const FileTree& points_;
    std::map<std::string, Same> same_;  // by the game's path
};

#endif
