// The names in one directory as it was when it was read, for look-ups that ignore case.
#ifndef PLATFORM_NATIVE_FILES_DIRECTORY_LISTING_H
#define PLATFORM_NATIVE_FILES_DIRECTORY_LISTING_H

#include <dirent.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

// The native name of a new entry. `written` is UTF-8 or Windows-1252.
std::string nameToCreate(std::string_view written);

class DirectoryListing {
 public:
    // Lists the directory `path`, which is native and may be relative. Empty on failure.
    static std::optional<DirectoryListing> read(const std::string& path);

    // The open directory, for the `...at` calls. It is closed with this object.
    int descriptor() const { return dirfd(directory_.get()); }

    // Whether the file system of the directory is mounted for writing.
    bool isMountedForWriting() const { return mountedForWriting_; }

    // The name of the entry that `written` means. An exact match comes first, then an exact match of its UTF-8 form if
    // `written` is Windows-1252, then one that differs in the case of ASCII letters only; of several, the first in byte
    // order. If there is none, the name for a new entry.
    std::string spell(std::string_view written) const;

 private:
    struct Close {
        void operator()(DIR* directory) const { closedir(directory); }
    };

    explicit DirectoryListing(DIR* directory);

    const std::string* find(std::string_view name) const;

    std::unique_ptr<DIR, Close> directory_;
    std::unordered_multimap<std::string, std::string> names_;  // by the name in lower case
    bool mountedForWriting_;
};

#endif
