// The old versions of a file that saves have kept. A file is "neighborhood.iff" or "user00013.iff", in any case, and
// `directory` is the one that it is in, without a trailing backslash.
#ifndef START_OLD_VERSIONS_H
#define START_OLD_VERSIONS_H

#include <cstdint>
#include <string>

// The backup that was written last, as a path from `directory`; empty if there is none.
std::string newestBackupOf(const std::string& directory, const std::string& file);

// What a save has set aside beside the file, whenever that was; empty if there is nothing.
std::string asideOf(const std::string& directory, const std::string& file);

// The newest backup, unless it is older than `begin`, in seconds since 1970. A path from `directory`, or empty.
std::string backupSince(std::int64_t begin, const std::string& directory, const std::string& file);

#endif
