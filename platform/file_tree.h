// A directory with all that is below it, for copying whole trees exactly: names of any bytes, times of the last write
// and modes. Unlike the calls of platform/files.h, nothing is looked up by another spelling here.
//
// A path is relative to the tree's root, with "/" between its components, and has the file system's own bytes; on
// Windows it is UTF-8. An empty path is the root. Where an operation fails, GetLastError has the reason.
#ifndef PLATFORM_FILE_TREE_H
#define PLATFORM_FILE_TREE_H

#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

// What a file has beside its bytes. `time` is the last write in the system's finest unit, only to be compared and set.
// `mode` is the permissions natively, and on Windows the attributes read-only, hidden and system.
struct FileStamp {
    std::int64_t size = 0;  // in bytes
    std::int64_t time = 0;
    std::uint32_t mode = 0;

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

// The same for each name of one file, and for no other file. Where the system doesn't number files, as on some network
// drives, the number is one of the name in any case of its letters.
struct FileId {
    std::uint64_t volume = 0;
    std::uint64_t number = 0;

    bool operator==(const FileId&) const = default;
    bool operator<(const FileId& other) const {
        return std::tie(volume, number) < std::tie(other.volume, other.number);
    }
};

struct TreeEntry {
    enum class Kind { file, directory, other };  // links that lead nowhere, or aren't followed, and devices are others

    std::string name;
    Kind kind = Kind::other;
    bool isLink = false;  // a symbolic link or its like, followed
    FileStamp stamp;      // of a file
};

class FileTree {
 public:
    enum class Links { followed, refused };

    // `root` is a path of the program. With `refused`, a symbolic link below the root, or on Windows anything like one,
    // is never followed: an operation whose path leads through one fails.
    FileTree(const std::string& root, Links links);
    FileTree(const FileTree&) = delete;
    FileTree& operator=(const FileTree&) = delete;
    ~FileTree();

    // The entries of a directory, sorted by the bytes of their names. No value if they can't all be read.
    std::optional<std::vector<TreeEntry>> entriesOf(const std::string& directory) const;

    // No value if it isn't a file, or can't be asked about.
    std::optional<FileStamp> stampOf(const std::string& file) const;

    // Of a file or directory.
    std::optional<FileId> idOf(const std::string& path) const;

    // Whether `file` and the file `other` of another tree can be read to their ends and have the same bytes.
    bool hasSameBytes(const std::string& file, const FileTree& tree, const std::string& other) const;

    // Streams without a buffer; null on failure. A file to create must not exist.
    std::FILE* openToRead(const std::string& file) const;
    std::FILE* create(const std::string& file) const;

    // Sets time and mode and closes the stream. `file` is the name under which it was created. Its data are on the disk
    // then, or with `later` when syncAll has returned.
    enum class Sync { now, later };
    bool finish(std::FILE* stream, const std::string& file, const FileStamp& stamp, Sync sync) const;

    bool setTimeAndMode(const std::string& file, const FileStamp& stamp) const;

    // Gives `file` a second name, which must be free. False also where the file system has no such links.
    bool link(const std::string& file, const std::string& name) const;

    // Gives a file the name of another one, which it replaces in one step, or a free name. A write-protected file is
    // replaced, too. The new one keeps the old one's group, as far as the system allows it.
    bool replace(const std::string& from, const std::string& to) const;

    // Gives a directory another name, which must be free.
    bool renameDirectory(const std::string& from, const std::string& to) const;

    // Makes the directory and those on the way to it that don't exist.
    bool makeDirectories(const std::string& directory) const;

    // Of a file, write-protected or not, and of an empty directory.
    bool removeFile(const std::string& file) const;
    bool removeDirectory(const std::string& directory) const;

    // Writes a directory's entries through to the disk, or all that was written and renamed on the disk where it is: a
    // directory that is a link may be on another one than the root.
    bool sync(const std::string& directory) const;
    bool syncAll(const std::string& directory) const;

    // Whether it can be the name of an entry, and leads nowhere else: it is neither ".." nor made of several
    // components.
    static bool isName(std::string_view name);

    // A path as the program's text, to be shown.
    static std::string shown(const std::string& path);

 private:
    struct State;
    std::unique_ptr<State> state_;
};

#endif
