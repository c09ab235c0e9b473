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

// Makes an unbuffered stream of an open descriptor. Null on failure, with the last error set and the descriptor closed.
std::FILE* streamOf(int descriptor, const char* mode);

#endif
