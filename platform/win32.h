// The platform: Win32 by its own names, as far as this program calls it. On Windows these are Windows' own, but
// for the five of own_calls.h; elsewhere the headers below declare them, each operation with its contract, and
// `native/` provides them. Constants bear Windows' values and structures its fields, so that code written against this
// header compiles unchanged for both.
//
// What is declared here is what exists: a message, style or flag that isn't listed does nothing elsewhere.
#ifndef PLATFORM_WIN32_H
#define PLATFORM_WIN32_H

#ifdef _WIN32

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
// windows.h leaves it out when it is told to be lean.
#include <shellapi.h>

#include "platform/windows/own_calls.h"

#else

#include "platform/native/api/controls.h"
#include "platform/native/api/file_system.h"
#include "platform/native/api/gdi.h"
#include "platform/native/api/registry.h"
#include "platform/native/api/resources.h"
#include "platform/native/api/system.h"
#include "platform/native/api/types.h"
#include "platform/native/api/windowing.h"

#endif

#endif
