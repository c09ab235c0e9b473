#include "platform/native/api/registry.h"

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

const RegistryValue* findValue(const HKEY__& key, std::string_view name) {
    const auto found = std::find_if(key.values.rbegin(), key.values.rend(),
                                    [&](const RegistryValue& value) { return equalInAnyCase(value.name, name); });
    return found != key.values.rend() ? &*found : nullptr;
}

}  // namespace

LSTATUS RegOpenKeyExA(HKEY key, LPCSTR subKey, DWORD, REGSAM, HKEY* result) {
    if (key != HKEY_LOCAL_MACHINE) return ERROR_INVALID_HANDLE;
    const std::string_view path = subKey != nullptr ? subKey : "";
    const std::string file = readRegistryFile(winePrefix() + "/system.reg");
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
