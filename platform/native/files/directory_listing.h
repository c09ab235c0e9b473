// The names in one directory as it was when it was read, for look-ups that ignore case.
#ifndef PLATFORM_NATIVE_FILES_DIRECTORY_LISTING_H
#define PLATFORM_NATIVE_FILES_DIRECTORY_LISTING_H

#include <dirent.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

struct CloseDirectory {
    void operator()(DIR* directory) const { closedir(directory); }
};
using OpenDirectory = std::unique_ptr<DIR, CloseDirectory>;

// Picks, out of the names that are offered, the one that `written` means. An exact match comes first, then an exact
// match of its UTF-8 form if `written` is Windows-1252, then one that differs in the case of ASCII letters only; of
// several, the first in byte order.
class SpellingSearch {
 public:
    explicit SpellingSearch(std::string_view written);

    void offer(std::string_view name);

    // If nothing fits, the name for a new entry.
    std::string result() const;

    // `written`, in its two forms.
    const std::string& written() const { return written_.name; }
    const std::string& utf8() const { return utf8_.name; }

 private:
    struct Form {
        std::string name;
        std::string best;  // of the names that differ from it in case only, or none; empty without one
    };

    static void offerTo(Form& form, std::string_view name);

    Form written_;
    Form utf8_;
};

// The name of the entry of the directory `path`, which is native and may be relative, that `written` means; as written
// if the directory can't be read. For one name this takes far less time than a listing.
std::string spellIn(const std::string& path, const std::string& written);

class DirectoryListing {
 public:
    // Lists the directory `path`, which is native and may be relative. Empty on failure.
    static std::optional<DirectoryListing> read(const std::string& path);

    // The open directory, for the `...at` calls. It is closed with this object.
    int descriptor() const { return dirfd(directory_.get()); }

    // Whether the file system of the directory is mounted for writing.
    bool isMountedForWriting() const { return mountedForWriting_; }

    // The name of the entry that `written` means, or for a new one.
    std::string spell(std::string_view written) const;

 private:
    explicit DirectoryListing(OpenDirectory directory);

    OpenDirectory directory_;
    std::unordered_multimap<std::string, std::string> names_;  // by the name in lower case
    bool mountedForWriting_;
};

#endif
