// Wine's text form of a registry: sections headed by a key's path in brackets, with lines of "name"=value. Only texts
// are read. The file is not ours and may be damaged anywhere: incomplete lines, and lines before the first section, are
// ignored.
#ifndef PLATFORM_NATIVE_REGISTRY_REGISTRY_FILE_H
#define PLATFORM_NATIVE_REGISTRY_REGISTRY_FILE_H

#include <string>
#include <string_view>
#include <vector>

#include "platform/native/api/types.h"

// Name and text are Windows-1252. The key's unnamed value has the name "".
struct RegistryValue {
    std::string name;
    DWORD type;  // REG_SZ or REG_EXPAND_SZ
    std::string text;
    std::string utf8;  // the same text, with what Windows-1252 doesn't have
};

// The file's bytes. Empty if it can't be read or is too large for a registry; real ones take a few megabytes.
std::string readRegistryFile(const std::string& path);

// Appends the text values of all sections of the key `key` ("Software\Maxis", in any case) to `values`, in file order.
// False if there is no such section.
bool readRegistryKey(std::string_view file, std::string_view key, std::vector<RegistryValue>& values);

#endif
