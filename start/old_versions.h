// The old versions of a file that saves have kept. A file is "neighborhood.iff" or "user00013.iff", in any case, and
// `directory` is the one that it is in, without a trailing backslash.
#ifndef START_OLD_VERSIONS_H
#define START_OLD_VERSIONS_H

#include <cstdint>
#include <string>

// The backup that was written last, as a path from `directory`; empty if there is none.
std::string newestBackupOf(const std::string& directory, const std::string& file);

// What a save has kept of the file since `begin`, in seconds since 1970: what it set aside, whenever that was, or a
// backup. A path from `directory`; empty if there is nothing.
std::string keptSince(std::int64_t begin, const std::string& directory, const std::string& file);

#endif
