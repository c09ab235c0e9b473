// Which files belong to a restore point, and finding, comparing and copying them.
#ifndef RESTORE_POINT_FILES_H
#define RESTORE_POINT_FILES_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_tree.h"

struct LiveFile {
    std::string path;
    FileStamp stamp;
    bool isLink = false;  // a symbolic link to the file
};

// The number of the neighborhood in whose directory the file lies ("UserData2/..." is 2), as a path in the game's
// directory; 0 if it lies in none.
int neighborhoodOf(std::string_view path);

// For operations on all neighborhoods instead of the one with a number.
constexpr int allNeighborhoods = 0;

// Whether the file lies in this neighborhood, or `neighborhood` is `allNeighborhoods`.
bool isIn(int neighborhood, std::string_view path);

// Whether `path` is one that a point may have: it leads to a file below a neighborhood's directory, through no ".."
// and no name that a point leaves out.
bool belongsToPoint(std::string_view path);

// The file's name in that of a part or a file set aside (platform/part_names.h); empty for any other name.
std::string fileBehind(std::string_view name);

struct NeighborhoodFiles {
    std::vector<LiveFile> files;  // sorted by their paths
    std::vector<std::string> directories;
    std::vector<std::string> withParts;  // those with files of fileBehind; one can be there several times
};

// The files of all neighborhoods, and the directories that they can be in. No value if not all can be found, with why
// in `error`.
std::optional<NeighborhoodFiles> filesOfNeighborhoods(const FileTree& tree, std::string& error);

// The CRC-32 of a file that has `size` bytes; no value if it has another size or can't be read.
std::optional<std::uint32_t> checksumOf(const FileTree& tree, const std::string& file, std::int64_t size);

// Copies the bytes of `from` to the new file `to`, which gets `stamp`, and is deleted again after a failure. Returns
// the CRC-32 of exactly `stamp.size` bytes, or no value; then `error` names the file that failed.
std::optional<std::uint32_t> copyFile(const FileTree& source, const std::string& from, const FileTree& target,
                                      const std::string& to, const FileStamp& stamp, FileTree::Sync sync,
                                      std::string& error);

// A file's text; no value if it can't be read or is far too long.
std::optional<std::string> textOfFile(const FileTree& tree, const std::string& file);

// Writes a text file whose name is in ASCII, in one step (NewVersion). False, with the reason in GetLastError, if it
// isn't on the disk; it can have its name all the same.
bool writeText(const std::string& directory, const std::string& name, const std::string& text);

// So many new files are synced one by one. More take less time all together, unless other programs have written much.
constexpr std::size_t fewFiles = 8;

// A file and why the last operation on it failed, as a sentence.
std::string failureOf(std::string_view what, const std::string& path);

#endif
