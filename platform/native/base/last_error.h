// The calling thread's last error (GetLastError, platform/native/api/system.h), set from what the system's calls
// report.
#ifndef PLATFORM_NATIVE_BASE_LAST_ERROR_H
#define PLATFORM_NATIVE_BASE_LAST_ERROR_H

#include "platform/native/api/types.h"

struct NativePath;

// Windows' code for a value of `errno`; ERROR_GEN_FAILURE for those without one.
DWORD windowsError(int error);

// Sets the last error from the `errno` of a call on `path`. Windows tells a missing file from a missing directory on
// the way to it, so the directory is looked at.
void setPathError(int error, const NativePath& path);

#endif
