// Opens native paths as streams of the C runtime.
#ifndef PLATFORM_NATIVE_FILES_FILE_STREAM_H
#define PLATFORM_NATIVE_FILES_FILE_STREAM_H

#include <sys/stat.h>

#include <cstdio>

#include "platform/native/files/paths.h"

// Whether a file with this status must not be opened with these flags of open(2). Ask before opening, because that
// alone may wait for the other end of a pipe or empty a file.
bool isRefused(const struct stat& status, int flags);

// Opens `file` without a buffer, with flags of open(2) and the matching mode of fopen. Null on failure, with the last
// error set; an existing file then keeps its bytes, and no new file is left behind.
std::FILE* openStream(const NativePath& file, int flags, const char* mode);

// Writes what the open file or directory has through to the disk. False, with `errno` set, if the disk reports an
// error. A device or file system without a sync has nothing left to do.
bool syncToDisk(int descriptor);

#endif
