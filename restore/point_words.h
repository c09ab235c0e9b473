// A restore point in words.
#ifndef RESTORE_POINT_WORDS_H
#define RESTORE_POINT_WORDS_H

#include <string>
#include <string_view>
#include <vector>

#include "restore/restore_points.h"

// In local time as seen from `now`, both in UTC: "today 20:12", "yesterday 20:12", "24 November 20:12", and with the
// year if that is another one.
std::string whenWords(const SYSTEMTIME& time, const SYSTEMTIME& now, bool withSeconds = false);

// "24 November" for "2026-11-24 ...", the form of platform/last_written.h; empty for another text.
std::string dayWords(std::string_view lastWritten);

// As --list shows it.
std::string utcText(const SYSTEMTIME& time);
std::string_view reasonText(PointReason reason);

// The points in the list, without what happened after them: "today 20:12 (made before going back)". Those that would
// read alike have the seconds, too, and those of the same second a number.
std::vector<std::string> pointTitles(const std::vector<RestorePoint>& points, const SYSTEMTIME& now);

// What the game's files are now, seen from a point: lines to be read, without line breaks. One line alone says why
// there is nothing to go back to: because nothing differs, which `isSame` gets, or because the files can't be read.
std::vector<std::string> comparisonLines(const std::string& pointsDirectory, const RestorePoint& point,
                                         const std::string& simsDirectory, int neighborhood, bool* isSame = nullptr);

// An entry of the list for each point: "today 20:12 - Bramble Thistlewood became an adult, moved out". `points` are
// the newest first.
std::vector<std::string> pointEntries(const std::string& pointsDirectory, const std::vector<RestorePoint>& points,
                                      const std::string& simsDirectory, const SYSTEMTIME& now);

#endif
