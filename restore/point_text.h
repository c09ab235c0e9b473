// The text file beside a restore point, which says what is in it:
//
//     Tidewright restore point 1
//     time 2026-11-25 19:12:03.250
//     reason evening
//     ended no
//     game /home/ann/.wine/drive_c/The Sims
//     file 566432 9ae0daaf 1795633923000000000 644 UserData/neighborhood.iff
//     end 1 5d2c7b01
//
// The game's directory is followed by a backslash. A file's line has its size, its CRC-32, its time of the last write
// and its mode (FileStamp of platform/file_tree.h) and its path in the game's directory. The last line has the number
// of files and the CRC-32 of all lines before it. Control characters and "%" are written as "%0A" and "%25". The lines
// end with a line feed on every system.
#ifndef RESTORE_POINT_TEXT_H
#define RESTORE_POINT_TEXT_H

#include <string>
#include <string_view>

#include "restore/restore_points.h"

// Everything but the name and the damage.
std::string textOfPoint(const RestorePoint& point);

// False, with why in `point.damage`, if the text isn't exactly as above. No path leads out of the neighborhoods'
// directories or comes twice; the files are sorted by their paths. `point.time` is what the text says if it gets so
// far.
bool readPointText(std::string_view text, RestorePoint& point);

#endif
