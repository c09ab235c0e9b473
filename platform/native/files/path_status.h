// What the system says of a path: why a call on it failed, and who may write there.
#ifndef PLATFORM_NATIVE_FILES_PATH_STATUS_H
#define PLATFORM_NATIVE_FILES_PATH_STATUS_H

#include <sys/stat.h>

struct NativePath;

// Sets the last error from the `errno` of a call on `path`. Windows distinguishes a missing file from a missing
// directory on the way to it, so ENOENT makes this look for the directory.
void setPathError(int error, const NativePath& path);

// Whether the file or directory has no write permission at all. Root may write it all the same; on Windows no user may,
// so this layer refuses it.
inline bool isWriteProtected(const struct stat& status) {
    return (status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
}

// Whether this process may write the file or directory `path`, whose status is `status`. Decided as access(2) does for
// the effective user, including read-only file systems, except that the owner's write bit binds root too.
bool mayWrite(const NativePath& path, const struct stat& status);

#endif
