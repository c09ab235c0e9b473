// Restore points: copies of all neighborhoods, made before each evening, to which the player can go back.
//
// A point is a plain directory of files in the directory of points, laid out as the game's: "2026-11-25 20.12.03",
// named by the local time, with "UserData\neighborhood.iff" and so on in it. Beside it a text file of the same name
// ("2026-11-25 20.12.03.txt", restore/point_text.h) says what belongs to it. A file that is the same as in the point
// before is a second name of that point's file, where the disk has such links, and else a copy. It is never one of a
// file of the game.
//
// To a point belong all files below "UserData", "UserData2" and so on, but for directories "Backups", files "TMP*" and
// the parts of a save. A symbolic link to a file is read as the file, and so is one that is a neighborhood's own
// directory. One to a directory below that isn't entered: what it leads to belongs to no point.
//
// A point has its name only when it is whole and on the disk, and loses it before anything of it is deleted. What a
// program that ended in between left is cleared away by the next one, under a lock on the directory of points.
//
// `pointsDirectory` is a path without a backslash at its end, `simsDirectory` one with it.
#ifndef RESTORE_RESTORE_POINTS_H
#define RESTORE_RESTORE_POINTS_H

#include <cstdint>
#include <string>
#include <vector>

#include "platform/file_tree.h"
#include "platform/win32.h"

constexpr std::size_t keptPoints = 30;

enum class PointReason { evening, byHand, goingBack };

struct PointFile {
    std::string path;  // in the point and in the game's directory, as in a FileTree
    FileStamp stamp;
    std::uint32_t checksum = 0;  // CRC-32

    friend bool operator==(const PointFile&, const PointFile&) = default;
};

struct RestorePoint {
    std::string name;
    SYSTEMTIME time{};  // UTC; the year is 0 if the text file doesn't say it
    PointReason reason = PointReason::evening;
    bool sessionEnded = true;      // false for an evening that was cut off, or isn't over
    std::string simsDirectory;     // gameOf
    std::vector<PointFile> files;  // sorted by their paths
    std::string damage;            // a sentence why it isn't whole; empty as far as is known
};

// In UTC, by the system's clock.
SYSTEMTIME presentTime();

// All points, the newest first; those that don't say their time last. Only their text files are read.
std::vector<RestorePoint> listRestorePoints(const std::string& pointsDirectory);

// Compares each file with the size and the checksum that are noted, and notes in `damage` what differs. A file that
// several of the points have in common is read once.
void checkPoints(const std::string& pointsDirectory, std::vector<RestorePoint>& points);
bool isWhole(const std::string& pointsDirectory, RestorePoint& point);

// The game's directory as a path that means the same wherever it is read: "C:" is another drive in each Wine prefix.
// With a backslash at its end.
std::string gameOf(const std::string& simsDirectory);

// Whether two of these are one and the same directory. Paths that differ in case alone may be two.
bool isSameGame(const std::string& one, const std::string& other);

// A sentence if the game in `simsDirectory` can't go back to the point: as far as is known it isn't whole, or it is of
// another game. Else empty.
std::string refusalOf(const RestorePoint& point, const std::string& simsDirectory);

struct MadePoint {
    std::string name;   // empty if none was made
    std::string error;  // a sentence why
    bool needsRoom = false;
    std::int64_t neededBytes = 0;  // these two if there isn't room for it
    std::int64_t availableBytes = 0;
};

// Makes a point of the present, and deletes the oldest ones beyond `keptPoints`. `time` is in UTC.
MadePoint makeRestorePoint(const std::string& pointsDirectory, const std::string& simsDirectory, PointReason reason,
                           const SYSTEMTIME& time = presentTime());

// Notes that the evening before which the point was made has ended. False if that couldn't be written.
bool noteSessionEnded(const std::string& pointsDirectory, const std::string& name);

// False if the point couldn't be deleted; it isn't listed any more then, or still whole. One that a going back that was
// cut off needs (restore/going_note.h) is never deleted.
bool deleteRestorePoint(const std::string& pointsDirectory, const std::string& name);

#endif
