#include "platform/native/files/paths.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>
#include <functional>
#include <map>
#include <optional>
#include <string_view>

#include "platform/files.h"
#include "platform/native/files/directory_listing.h"

namespace {

// The directories used while a SteadyDirectories exists, by the program's spelling of their paths; no value for one
// that can't be listed.
std::map<std::string, std::optional<DirectoryListing>, std::less<>> steadyListings;
int steadyScopes = 0;

std::string_view textOf(const char* text) {
    return text != nullptr ? text : "";
}

std::string homeDirectory() {
    const std::string_view home = textOf(std::getenv("HOME"));
    if (!home.empty()) return std::string(home);
    const passwd* user = getpwuid(getuid());
    return std::string(textOf(user != nullptr ? user->pw_dir : nullptr));
}

bool isDriveLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool isSeparator(char c) {
    return c == '\\' || c == '/';
}

// The native form of a path, each component as written.
std::string asWritten(std::string_view path) {
    std::string native;
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

bool exists(const std::string& path) {
    struct stat found = {};
    return lstat(path.c_str(), &found) == 0;
}

bool isSpecial(std::string_view name) {
    return name.empty() || name == "." || name == "..";
}

// `written` with each component as the file system spells it.
std::string spelled(const std::string& written) {
    // The system refuses a path of this length, so it is not looked up.
    if (written.size() >= PATH_MAX || exists(written)) return written;
    const std::size_t nameAt = written.rfind('/') + 1;
    std::string directory = written.substr(0, nameAt);
    std::string name = written.substr(nameAt);
    if (directory.size() > 1) directory = spelled(directory.substr(0, nameAt - 1)) + '/';
    if (isSpecial(name)) return directory + name;
    return directory + spellIn(directory.empty() ? "." : directory, name);
}

// The listing of the directory that the program calls `spelling`. Null if no SteadyDirectories exists or the directory
// can't be listed.
const DirectoryListing* steadyListing(std::string_view spelling) {
    if (steadyScopes == 0) return nullptr;
    auto found = steadyListings.find(spelling);
    if (found == steadyListings.end()) {
        found = steadyListings.emplace(spelling, DirectoryListing::read(spelled(asWritten(spelling)))).first;
    }
    return found->second.has_value() ? &*found->second : nullptr;
}

}  // namespace

NativePath locate(const char* path) {
    const std::string_view text = textOf(path);
    const std::size_t nameAt = text.find_last_of("\\/") + 1;  // 0 without a separator
    const std::string_view name = text.substr(nameAt);
    const bool isPlain = nameAt > 1 && !isSpecial(name);
    const DirectoryListing* const listing = isPlain ? steadyListing(text.substr(0, nameAt - 1)) : nullptr;
    if (listing == nullptr) return {AT_FDCWD, nativePath(path), false};
    return {listing->descriptor(), listing->spell(name), listing->isMountedForWriting()};
}

std::string nativePath(const char* path) {
    return spelled(asWritten(textOf(path)));
}

SteadyDirectories::SteadyDirectories() {
    ++steadyScopes;
}

SteadyDirectories::~SteadyDirectories() {
    if (--steadyScopes == 0) steadyListings.clear();
}

std::string winePrefix() {
    const std::string_view variable = textOf(std::getenv("WINEPREFIX"));
    std::string prefix = variable.empty() ? homeDirectory() + "/.wine" : std::string(variable);
    while (prefix.size() > 1 && prefix.back() == '/') {
        prefix.pop_back();
    }
    return prefix;
}
