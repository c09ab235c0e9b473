// Wine's text form of a registry: sections with a key's path in brackets, below them lines of "name"=value. Of the
// values only texts are understood. The file is somebody else's and may be damaged anywhere: a line that isn't whole
// counts for nothing, and neither does one in front of the first section.
#ifndef PLATFORM_NATIVE_REGISTRY_REGISTRY_FILE_H
#define PLATFORM_NATIVE_REGISTRY_REGISTRY_FILE_H

#include <string>
#include <string_view>
#include <vector>

#include "platform/native/api/types.h"

// Name and text are Windows-1252; the key's unnamed value has the name "".
struct RegistryValue {
    std::string name;
    DWORD type;  // REG_SZ or REG_EXPAND_SZ
    std::string text;
};

// Key paths and the names of values are compared without regard to the case of ASCII letters.
bool isSameRegistryName(std::string_view a, std::string_view b);

// Adds the text values of each section of the key `key` ("Software\Maxis") to `values`, in the order of the file. False
// if there is no such section.
bool readRegistryKey(std::string_view file, std::string_view key, std::vector<RegistryValue>& values);

#endif
