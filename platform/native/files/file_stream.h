// Files of the directory in which a path was found, opened as streams of the C runtime.
#ifndef PLATFORM_NATIVE_FILES_FILE_STREAM_H
#define PLATFORM_NATIVE_FILES_FILE_STREAM_H

#include <sys/stat.h>

#include <cstdio>

#include "platform/native/files/paths.h"

// Whether a file of this status may not be opened with these flags of open(2). Asked before the opening, because
// opening already does things: it waits for the other end of a pipe, it empties a file.
bool isRefused(const struct stat& status, int flags);

// Opens `file` with flags of open(2) and the mode of fopen that goes with them, without a buffer. Null on failure, with
// the last error set; then a file that was there has its bytes, and none has been made.
std::FILE* openStream(const NativePath& file, int flags, const char* mode);

// The stream of an open descriptor, without a buffer. Null on failure, with the last error set and the descriptor
// closed.
std::FILE* streamOf(int descriptor, const char* mode);

#endif
