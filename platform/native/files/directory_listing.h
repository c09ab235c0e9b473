// The names in one directory, for the search without regard to case. A listing shows the directory as it was when it
// was read.
#ifndef PLATFORM_NATIVE_FILES_DIRECTORY_LISTING_H
#define PLATFORM_NATIVE_FILES_DIRECTORY_LISTING_H

#include <dirent.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

// The name of a new entry that the program calls `written`, in UTF-8 or Windows-1252.
std::string nameToCreate(std::string_view written);

class DirectoryListing {
 public:
    // Lists the directory `path` (native, relative to the working directory or absolute). Empty if that fails.
    static std::optional<DirectoryListing> read(const std::string& path);

    // The open directory, for the `...at` calls; closed with this object.
    int descriptor() const { return dirfd(directory_.get()); }

    // Whether the directory's mount takes writes.
    bool isMountedForWriting() const { return mountedForWriting_; }

    // The name of the entry that `written` means: the entry of just that spelling; else that of its UTF-8 form, if
    // `written` is Windows-1252; else one that differs in the case of ASCII letters only (of several, the first in the
    // order of bytes). If there is none, the name to create.
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
