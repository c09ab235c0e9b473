#include "platform/native/files/path_status.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <string>

#include "platform/native/api/system.h"
#include "platform/native/base/last_error.h"
#include "platform/native/files/paths.h"

namespace {

bool hasDirectory(const NativePath& path) {
    const std::size_t slash = path.name.rfind('/');
    if (slash == std::string::npos || slash == 0) return true;
    struct stat found = {};
    return fstatat(path.directory, path.name.substr(0, slash).c_str(), &found, 0) == 0 && S_ISDIR(found.st_mode);
}

}  // namespace

void setPathError(int error, const NativePath& path) {
    SetLastError(error == ENOENT && !hasDirectory(path) ? ERROR_PATH_NOT_FOUND : windowsError(error));
}

bool mayWrite(const NativePath& path, const struct stat& status) {
    static const uid_t user = geteuid();
    const bool ownerMay = (status.st_mode & S_IWUSR) != 0;
    if (user == 0 && !ownerMay) return false;
    // Answers for nearly every file without another system call: only the owner's bit counts for its owner. A directory
    // may be the root of another mount.
    const bool isOwner = user == 0 || status.st_uid == user;
    if (path.mountedForWriting && S_ISREG(status.st_mode) && isOwner && ownerMay) return true;
    return faccessat(path.directory, path.name.c_str(), W_OK, AT_EACCESS) == 0;
}
