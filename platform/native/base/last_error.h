// Windows' error codes for those of the system. The last error itself is declared in platform/native/api/system.h.
#ifndef PLATFORM_NATIVE_BASE_LAST_ERROR_H
#define PLATFORM_NATIVE_BASE_LAST_ERROR_H

#include "platform/native/api/types.h"

// Windows' code for a value of `errno`; ERROR_GEN_FAILURE for those without one.
DWORD windowsError(int error);

#endif
