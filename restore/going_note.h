// The note that stays beside the points while files are put back: going-back.txt.
#ifndef RESTORE_GOING_NOTE_H
#define RESTORE_GOING_NOTE_H

#include <optional>
#include <string>

#include "platform/file_tree.h"

struct GoingNote {
    std::string target;  // the name of the point
    std::string before;  // of the point that was made before
    std::string simsDirectory;
    int neighborhood = 0;  // 0 for all

    // Whether this point is needed to complete or to undo it.
    bool needs(const std::string& point) const { return point == target || point == before; }
};

// `points` is the directory of points. No value if there is no note, or none that can be understood.
std::optional<GoingNote> readNote(const FileTree& points);

// False, with the reason in GetLastError, if it couldn't be written to the disk; there is no note then, unless it can't
// be deleted either.
bool writeNote(const std::string& pointsDirectory, const GoingNote& note);
bool deleteNote(const FileTree& points);

// A note that is there but can't be understood gets this name, so that it is spoken of once.
constexpr const char* damagedNoteName = "going-back.damaged.txt";

// Whether there was one.
bool setDamagedNoteAside(const FileTree& points);

#endif
