#include "platform/native/files/path_error.h"

#include <fcntl.h>
#include <sys/stat.h>

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
