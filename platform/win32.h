// The part of Win32 that this program calls, under its own names. On Windows these are the system's calls, except for
// those of own_calls.h. Elsewhere the headers below declare them, each with its contract, and `native/` implements
// them. Constants have Windows' values, and structures those of its fields that the program uses, so the same code
// compiles for both. What these headers don't declare doesn't compile outside Windows.
#ifndef PLATFORM_WIN32_H
#define PLATFORM_WIN32_H

#ifdef _WIN32

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
// windows.h does not include it under WIN32_LEAN_AND_MEAN.
#include <shellapi.h>

#include "platform/windows/own_calls.h"

#else

#include "platform/native/api/controls.h"
#include "platform/native/api/file_system.h"
#include "platform/native/api/gdi.h"
#include "platform/native/api/profile.h"
#include "platform/native/api/registry.h"
#include "platform/native/api/resources.h"
#include "platform/native/api/system.h"
#include "platform/native/api/types.h"
#include "platform/native/api/windowing.h"

#endif

#endif
