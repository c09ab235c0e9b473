// Error codes of Windows for those of the system. GetLastError is declared in platform/native/api/system.h.
#ifndef PLATFORM_NATIVE_BASE_LAST_ERROR_H
#define PLATFORM_NATIVE_BASE_LAST_ERROR_H

#include "platform/native/api/types.h"

// The code of Windows for a value of `errno`; ERROR_GEN_FAILURE if it has none.
DWORD windowsError(int error);

#endif
