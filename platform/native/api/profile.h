// Settings in a file of sections, "[section]" with lines "name=value".
#ifndef PLATFORM_NATIVE_API_PROFILE_H
#define PLATFORM_NATIVE_API_PROFILE_H

#include "platform/native/api/types.h"

// Reads a value into `text`, with its terminator and cut to `size` bytes, and returns its length. The text is
// `defaultText` if there is no such value, or the file isn't there or isn't of this form. The file has UTF-8 here, and
// the text is its bytes, as those of a path are. Left out: lists of names, whose arguments are null.
DWORD GetPrivateProfileStringA(LPCSTR section, LPCSTR name, LPCSTR defaultText, LPSTR text, DWORD size, LPCSTR file);

// Writes a value, or removes it if `text` is null; the file's other values stay. The file is replaced when the new one
// is complete. FALSE if it can't be written.
BOOL WritePrivateProfileStringA(LPCSTR section, LPCSTR name, LPCSTR text, LPCSTR file);

#endif
