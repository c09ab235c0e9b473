// The program's resources: a compiled resource script (`.res`) that the build embeds. Ids are given with
// MAKEINTRESOURCEA.
#ifndef PLATFORM_NATIVE_API_RESOURCES_H
#define PLATFORM_NATIVE_API_RESOURCES_H

#include "platform/native/api/types.h"

// Copies an entry of the string table as Windows-1252, cut to `size` - 1 characters, with a terminator. Returns its
// length, 0 if there is none.
int LoadStringA(HINSTANCE instance, UINT id, LPSTR text, int size);

// An icon of the resources, or null with ERROR_RESOURCE_NAME_NOT_FOUND.
HICON LoadIconA(HINSTANCE instance, LPCSTR name);

// A cursor of the system (`instance` null): IDC_ARROW, IDC_WAIT or IDC_APPSTARTING.
HCURSOR LoadCursorA(HINSTANCE instance, LPCSTR name);

// A bitmap (IMAGE_BITMAP) of the resources in its own size; `width` and `height` must be 0. Null if there is none.
HANDLE LoadImageA(HINSTANCE instance, LPCSTR name, UINT type, int width, int height, UINT flags);

#endif
