#include "platform/own_directory.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "platform/letter_case.h"
#include "platform/path_text.h"

namespace {

// No working directory of the programs may have a longer path.
constexpr std::size_t longestPath = 199;

std::string variable(const char* name) {
    const char* const value = std::getenv(name);
    return value != nullptr ? value : "";
}

// Makes the directory and those above it. 0, or the `errno` of the first that can't be made.
int makeDirectories(const std::string& path) {
    for (std::size_t end = path.find('/', 1);; end = path.find('/', end + 1)) {
        if (mkdir(path.substr(0, end).c_str(), 0777) != 0 && errno != EEXIST) return errno;
        if (end == std::string::npos) return 0;
    }
}

std::string faultOf(const std::string& path) {
    if (path.size() > longestPath) {
        return "The path " + shownPath(path) + " has 200 characters or more, which is too long.";
    }
    const int error = makeDirectories(path);
    if (error != 0) return "The directory " + shownPath(path) + " can't be made: " + std::strerror(error) + ".";
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0 || !S_ISDIR(status.st_mode)) {
        return shownPath(path) + " isn't a directory.";
    }
    if (access(path.c_str(), R_OK | W_OK | X_OK) == 0) return "";
    return "The directory " + shownPath(path) + " can't be written into: " + std::strerror(errno) + ".";
}

}  // namespace

OwnDirectory ownDirectory(const std::string& name) {
    std::string base = variable("XDG_DATA_HOME");
    if (base.rfind('/', 0) != 0) {
        const std::string home = variable("HOME");
        if (home.empty()) return {"", "HOME has no value, so there is no place for this program's files."};
        base = home + "/.local/share";
    }
    const std::string path = absolutePath(absolutePath(base) + '/' + lowered(name));
    return {path, faultOf(path)};
}
