// Going back to a restore point: each file that differs from the point's is replaced in one step, the neighborhoods'
// own files last, then the files that the point doesn't have are deleted. Times and modes become those of the point.
// What doesn't belong to a point (restore/restore_points.h) stays. A symbolic link to a file gives way to the file.
//
// At each moment every live file is whole: all new versions are complete and on the disk before the first one takes its
// name. If the program is stopped while they do, a note beside the points stays, by which the next one completes or
// undoes it. Before all this a point of the present is made, so nothing is ever lost.
#ifndef RESTORE_GOING_BACK_H
#define RESTORE_GOING_BACK_H

#include <optional>
#include <string>
#include <vector>

#include "restore/going_note.h"
#include "restore/point_files.h"
#include "restore/restore_points.h"

// Paths in the game's directory, as in a FileTree.
struct PointComparison {
    std::vector<std::string> changed;  // other bytes
    std::vector<std::string> stamped;  // the same bytes, but another time or mode
    std::vector<std::string> toCome;   // only in the point
    std::vector<std::string> toGo;     // only in the game
};

// No value, with a sentence in `error`, if the game's files can't be read.
std::optional<PointComparison> compareWithPoint(const std::string& pointsDirectory, const RestorePoint& point,
                                                const std::string& simsDirectory, int neighborhood, std::string& error);

struct GoneBack {
    std::string error;       // a sentence; empty if it is done
    bool isBetween = false;  // the note stays: finishGoingBack is needed. Else an error of goBack has changed nothing
    MadePoint present;       // the point that was made before
};

// Refuses a point that isn't whole, one of another game, one that has a file where the game has a directory or the
// other way round, and to begin while an earlier going back isn't finished or the neighborhoods are being saved.
// Where nothing differs, nothing is done and no point is made. Once all neighborhoods are back, or all that differ
// from a point, the session of that point counts as ended.
GoneBack goBack(const std::string& pointsDirectory, const RestorePoint& point, const std::string& simsDirectory,
                int neighborhood, const SYSTEMTIME& time = presentTime());

// What the note says; no value if there is none.
std::optional<GoingNote> unfinishedGoingBack(const std::string& pointsDirectory);

struct DamagedNote {
    std::string sentence;     // empty if there is none
    bool isInTheWay = false;  // it is still there, and nothing else may begin
};

// Looks for a note that can't be understood, and gives it another name.
DamagedNote damagedGoingBack(const std::string& pointsDirectory);

enum class Finish { complete, undo };

// Brings the files to the state of the target or of before, and deletes the note. If files were changed by others
// meanwhile, a point of the present is made first. If neither state's point is whole any more, the note is deleted and
// the files stay as they are, which is an error.
GoneBack finishGoingBack(const std::string& pointsDirectory, Finish how, const SYSTEMTIME& time = presentTime());

#endif
