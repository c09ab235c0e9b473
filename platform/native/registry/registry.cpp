#include "platform/native/api/registry.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/letter_case.h"
#include "platform/native/api/system.h"
#include "platform/native/files/paths.h"
#include "platform/native/registry/registry_file.h"

struct HKEY__ {
    // In ascending order of precedence: the plain section's values, then those of the section of 32-bit programs.
    std::vector<RegistryValue> values;
};

namespace {

constexpr std::string_view software = "Software\\";
constexpr std::string_view softwareOf32Bit = "Software\\Wow6432Node\\";

std::vector<std::unique_ptr<HKEY__>> openKeys;

auto openKey(HKEY key) {
    return std::find_if(openKeys.begin(), openKeys.end(), [&](const auto& open) { return open.get() == key; });
}

// The file's bytes. Empty if it can't be read or is too large for a registry; real ones take a few megabytes. Reads no
// more than the size at first, because Wine may be rewriting the file.
std::string readWhole(const std::string& path) {
    constexpr off_t largest = 256 << 20;
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file < 0) return {};
    struct stat status = {};
    const bool readable = fstat(file, &status) == 0 && S_ISREG(status.st_mode) && status.st_size <= largest;
    std::string content(readable ? static_cast<std::size_t>(status.st_size) : 0, '\0');
    std::size_t filled = 0;
    ssize_t count = 1;
    while (count > 0 && filled < content.size()) {
        count = read(file, &content[filled], content.size() - filled);
        if (count > 0) filled += static_cast<std::size_t>(count);
    }
    close(file);
    content.resize(filled);
    return content;
}

const RegistryValue* findValue(const HKEY__& key, std::string_view name) {
    const auto found = std::find_if(key.values.rbegin(), key.values.rend(),
                                    [&](const RegistryValue& value) { return equalInAnyCase(value.name, name); });
    return found != key.values.rend() ? &*found : nullptr;
}

}  // namespace

LSTATUS RegOpenKeyExA(HKEY key, LPCSTR subKey, DWORD, REGSAM, HKEY* result) {
    if (key != HKEY_LOCAL_MACHINE) return ERROR_INVALID_HANDLE;
    const std::string_view path = subKey != nullptr ? subKey : "";
    const std::string file = readWhole(winePrefix() + "/system.reg");
    auto opened = std::make_unique<HKEY__>();
    bool found = readRegistryKey(file, path, opened->values);
    if (equalInAnyCase(path.substr(0, software.size()), software)) {
        const std::string twin = std::string(softwareOf32Bit).append(path.substr(software.size()));
        found = readRegistryKey(file, twin, opened->values) || found;
    }
    if (!found) return ERROR_FILE_NOT_FOUND;
    *result = opened.get();
    openKeys.push_back(std::move(opened));
    return ERROR_SUCCESS;
}

LSTATUS RegQueryValueExA(HKEY key, LPCSTR valueName, LPDWORD, LPDWORD type, LPBYTE data, LPDWORD size) {
    const auto open = openKey(key);
    if (open == openKeys.end()) return ERROR_INVALID_HANDLE;
    if (data != nullptr && size == nullptr) return ERROR_INVALID_PARAMETER;
    const RegistryValue* value = findValue(**open, valueName != nullptr ? valueName : "");
    if (value == nullptr) return ERROR_FILE_NOT_FOUND;
    if (type != nullptr) *type = value->type;
    if (size == nullptr) return ERROR_SUCCESS;
    const DWORD room = *size;
    *size = static_cast<DWORD>(value->text.size() + 1);
    if (data == nullptr) return ERROR_SUCCESS;
    if (room < *size) return ERROR_MORE_DATA;
    std::memcpy(data, value->text.c_str(), *size);
    return ERROR_SUCCESS;
}

LSTATUS RegCloseKey(HKEY key) {
    const auto open = openKey(key);
    if (open == openKeys.end()) return ERROR_INVALID_HANDLE;
    openKeys.erase(open);
    return ERROR_SUCCESS;
}
