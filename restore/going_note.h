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

// `damaged` can be read and not understood. `unreadable` can be good: a right is missing, or the disk fails.
enum class NoteState { none, good, damaged, unreadable };
NoteState stateOfNote(const FileTree& points);

// A damaged note gets this name, so that it is spoken of once. One that was damaged before is replaced.
constexpr const char* damagedNoteName = "going-back.damaged.txt";
bool setNoteAside(const FileTree& points);

#endif
