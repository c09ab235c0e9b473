// The names in one directory, for the search without regard to case, kept for as long as they are known to be true. A
// listing is never trusted by its age: each use asks the system whether the directory is still the same and unchanged.
#ifndef PLATFORM_NATIVE_FILES_DIRECTORY_LISTING_H
#define PLATFORM_NATIVE_FILES_DIRECTORY_LISTING_H

#include <sys/stat.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// The name of a new entry that the program calls `written`, in UTF-8 or Windows-1252.
std::string nameToCreate(std::string_view written);

class DirectoryListing {
 public:
    // Lists the directory `path` (native, relative to the working directory or absolute). Null if it can't be listed.
    static std::unique_ptr<DirectoryListing> read(std::string path);
    ~DirectoryListing();
    DirectoryListing(const DirectoryListing&) = delete;
    DirectoryListing& operator=(const DirectoryListing&) = delete;

    const std::string& path() const { return path_; }

    // The open directory, for the `...at` calls; closed with this object.
    int descriptor() const { return descriptor_; }

    // Whether `path` still leads to this directory and its times are those of the listing. Costs one system call.
    bool isCurrent() const;

    // The name of the entry that `written` means: the entry of just that spelling; else that of its UTF-8 form, if
    // `written` is Windows-1252; else one that differs in the case of ASCII letters only (of several, the first in the
    // order of bytes). If there is none, the name to create: `written`, in UTF-8. Ask only while the listing is
    // current.
    std::string spell(std::string_view written);

    // Whether the directory's mount takes writes; a change of that is noticed within a second.
    bool isMountedForWriting();

 private:
    DirectoryListing(std::string path, int descriptor) : path_(std::move(path)), descriptor_(descriptor) {}

    bool list();
    bool holds(const std::string& name) const;
    const std::string* listedSpelling(std::string_view name) const;
    std::string spellSettled(std::string_view written) const;

    std::string path_;
    int descriptor_;
    struct stat identity_ = {};
    // A change may have come within the clock tick of the listing and left no mark in the directory's times.
    bool settled_ = false;
    // Entries by their names in lower case; the spellings of one name in the order of bytes.
    std::unordered_map<std::string, std::vector<std::string>> spellings_;
    bool mountedForWriting_ = false;
    std::int64_t mountAskedSecond_ = -1;
};

#endif
