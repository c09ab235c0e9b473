// The names that a NewVersion (platform/files.h) uses beside its file, until the file is in its place: those of
// "user00013.iff" are "user00013.iff.tidewright-new0" for the part that is being written and
// "user00013.iff.tidewright-old0" for the older file that was set aside. No other file ends with such a name.
#ifndef PLATFORM_PART_NAMES_H
#define PLATFORM_PART_NAMES_H

#include <string>
#include <string_view>

// The last digit, for names that are taken: by a process that has ended, or by another one where nothing can be locked.
constexpr int partNumbers = 10;

// `file` may be a path.
std::string partName(std::string_view file, int number);
std::string asideName(std::string_view file, int number);

// The file's name in the name of its part, or of its older version that was set aside; empty for any other name.
std::string fileOfPart(std::string_view name);
std::string fileOfAside(std::string_view name);

// Clears away what processes that ended half-way left in `directory`: deletes the parts, and the files that were set
// aside, but one without a new version gets its name back. The caller holds the lock under which all those files are
// written.
void clearLeftOverParts(const char* directory);

// Deletes the parts alone: what was set aside can be the only one of its version. Under the same lock.
void clearUnfinishedParts(const char* directory);

#endif
