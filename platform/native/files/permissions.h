// Windows' one attribute "read-only", told from the system's permissions.
#ifndef PLATFORM_NATIVE_FILES_PERMISSIONS_H
#define PLATFORM_NATIVE_FILES_PERMISSIONS_H

#include <sys/stat.h>

struct NativePath;

// Whether nobody may write the file or directory. Root passes over this; on Windows nobody does, so neither do the
// operations of this layer.
inline bool isWriteProtected(const struct stat& status) {
    return (status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
}

// Whether this process may write the file or directory `path`, whose status is `status`: as access(2) judges for the
// effective user, which knows a read-only file system too. Root, who may write anything, is bound to the owner's bit.
bool mayWrite(const NativePath& path, const struct stat& status);

#endif
