#include "platform/native/files/permissions.h"

#include <fcntl.h>
#include <unistd.h>

#include "platform/native/files/paths.h"

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
