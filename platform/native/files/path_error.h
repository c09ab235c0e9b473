// The last error of a call on a path.
#ifndef PLATFORM_NATIVE_FILES_PATH_ERROR_H
#define PLATFORM_NATIVE_FILES_PATH_ERROR_H

struct NativePath;

// Sets the last error from the `errno` of a call on `path`. Windows distinguishes a missing file from a missing
// directory on the way to it, so ENOENT makes this look for the directory.
void setPathError(int error, const NativePath& path);

#endif
