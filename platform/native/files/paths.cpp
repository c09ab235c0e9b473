#include "platform/native/files/paths.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/native/files/directory_listing.h"

namespace {

constexpr std::string_view workingDirectory = ".";

// The directories asked for last, the latest first.
class ListingCache {
 public:
    // The kept listing of `directory`, a native path or the spelling it was kept under, if it is still true; else null.
    DirectoryListing* current(std::string_view directory) {
        const auto found = std::find_if(kept_.begin(), kept_.end(), [&](const Kept& kept) {
            return kept.spelling == directory || kept.listing->path() == directory;
        });
        if (found == kept_.end()) return nullptr;
        const bool checked = steadyDepth_ > 0 && found->checkedInRun == steadyRun_;
        if (!checked && !found->listing->isCurrent()) {
            kept_.erase(found);
            return nullptr;
        }
        found->checkedInRun = steadyRun_;
        std::rotate(kept_.begin(), found, found + 1);
        return kept_.front().listing.get();
    }

    void beginSteady() {
        if (steadyDepth_++ == 0) ++steadyRun_;
    }
    void endSteady() { --steadyDepth_; }

    // Lists `directory`, a native path, unless its listing is kept. Null if it can't be listed.
    DirectoryListing* read(const std::string& directory) {
        if (DirectoryListing* kept = current(directory)) return kept;
        std::unique_ptr<DirectoryListing> listing = DirectoryListing::read(directory);
        if (!listing) return nullptr;
        if (kept_.size() == capacity) kept_.pop_back();
        kept_.insert(kept_.begin(), {std::string(), std::move(listing), steadyRun_});
        return kept_.front().listing.get();
    }

    // Lets the latest directory be found by the program's spelling too. Only for a directory that exists just as that
    // spelling says: there the listing's own check proves the whole way to it.
    void keepUnder(std::string_view spelling) { kept_.front().spelling = spelling; }

    // To be told before each search: with another prefix the same spelling means another directory.
    void usePrefix(std::string_view variable, std::string_view home) {
        if (variable == variable_ && home == home_) return;
        variable_ = variable;
        home_ = home;
        kept_.clear();
    }

 private:
    struct Kept {
        std::string spelling;
        std::unique_ptr<DirectoryListing> listing;
        unsigned checkedInRun;
    };

    static constexpr std::size_t capacity = 32;  // each holds a descriptor
    std::vector<Kept> kept_;
    int steadyDepth_ = 0;
    unsigned steadyRun_ = 0;
    std::string variable_;
    std::string home_;
};

// Where a path leads: an entry of a directory, which is given by its listing or else by its native path ("" for the
// working directory).
struct Entry {
    std::string directory;
    std::string name;
    DirectoryListing* listing;
};

std::string_view textOf(const char* text) {
    return text != nullptr ? text : "";
}

std::string_view prefixVariable() {
    return textOf(std::getenv("WINEPREFIX"));
}

std::string_view homeVariable() {
    return textOf(std::getenv("HOME"));
}

std::string homeDirectory() {
    if (!homeVariable().empty()) return std::string(homeVariable());
    const passwd* user = getpwuid(getuid());
    return std::string(textOf(user != nullptr ? user->pw_dir : nullptr));
}

bool isDriveLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool isSeparator(char c) {
    return c == '\\' || c == '/';
}

// The path with native separators and root, each component as written.
std::string asWritten(std::string_view path) {
    std::string native;
    native.reserve(path.size());
    if (path.size() >= 2 && isDriveLetter(path[0]) && path[1] == ':') {
        native = winePrefix() + "/dosdevices/" + static_cast<char>(path[0] | 0x20) + ':';
        path.remove_prefix(2);
        if (!path.empty()) native += '/';
    }
    for (const char c : path) {
        if (isSeparator(c) && !native.empty() && native.back() == '/') continue;
        native += isSeparator(c) ? '/' : c;
    }
    return native;
}

std::string pathOf(const Entry& entry) {
    const std::string& directory = entry.listing != nullptr ? entry.listing->path() : entry.directory;
    if (directory.empty() || directory == workingDirectory) return entry.name;
    return directory.back() == '/' ? directory + entry.name : directory + '/' + entry.name;
}

// Divides a path at its last slash; the root keeps it.
Entry divided(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos) return {"", path, nullptr};
    return {path.substr(0, std::max<std::size_t>(slash, 1)), path.substr(slash + 1), nullptr};
}

std::string listable(const std::string& directory) {
    return directory.empty() ? std::string(workingDirectory) : directory;
}

// What stands before the last separator; empty for a plain name and for an entry of the root.
std::string_view directorySpelling(std::string_view path) {
    std::size_t end = path.size();
    while (end > 0 && !isSeparator(path[end - 1])) {
        --end;
    }
    return path.substr(0, end > 0 ? end - 1 : 0);
}

bool exists(const std::string& path) {
    struct stat found = {};
    return lstat(path.c_str(), &found) == 0;
}

bool isSpecial(std::string_view name) {
    return name.empty() || name == "." || name == "..";
}

// Finds the entry that the native path `path` (as written) means.
Entry find(ListingCache& cache, const std::string& path) {
    Entry entry = divided(path);
    const bool special = isSpecial(entry.name);
    if (!special) {
        entry.listing = cache.current(listable(entry.directory));
        if (entry.listing == nullptr && exists(path)) return entry;
    }
    if (entry.listing == nullptr) {
        if (!entry.directory.empty() && entry.directory != "/") entry.directory = pathOf(find(cache, entry.directory));
        if (!special) entry.listing = cache.read(listable(entry.directory));
    }
    if (entry.listing != nullptr) entry.name = entry.listing->spell(entry.name);
    return entry;
}

ListingCache cache;

Entry find(std::string_view path) {
    cache.usePrefix(prefixVariable(), prefixVariable().empty() ? homeVariable() : "");
    // Files are asked for in runs of one directory, so the shortest way begins with the program's own spelling of it.
    const std::string_view spelling = directorySpelling(path);
    const std::string_view name = path.substr(std::min(spelling.size() + 1, path.size()));
    if (!spelling.empty() && !isSpecial(name)) {
        if (DirectoryListing* listing = cache.current(spelling)) {
            return {"", listing->spell(name), listing};
        }
    }
    const std::string written = asWritten(path);
    // Longer than the system takes: left to its refusal.
    if (written.size() >= PATH_MAX) return {"", written, nullptr};
    Entry entry = find(cache, written);
    const bool leadsThere = entry.listing != nullptr && entry.listing->path() == divided(written).directory;
    if (!spelling.empty() && leadsThere) cache.keepUnder(spelling);
    return entry;
}

}  // namespace

NativePath locate(const char* path) {
    Entry entry = find(textOf(path));
    if (entry.listing == nullptr) return {AT_FDCWD, pathOf(entry), false};
    return {entry.listing->descriptor(), std::move(entry.name), entry.listing->isMountedForWriting()};
}

std::string nativePath(const char* path) {
    return pathOf(find(textOf(path)));
}

void beginSteadyDirectories() {
    cache.beginSteady();
}

void endSteadyDirectories() {
    cache.endSteady();
}

std::string winePrefix() {
    const std::string_view variable = prefixVariable();
    std::string prefix = variable.empty() ? homeDirectory() + "/.wine" : std::string(variable);
    while (prefix.size() > 1 && prefix.back() == '/') {
        prefix.pop_back();
    }
    return prefix;
}
