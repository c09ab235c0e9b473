#include "platform/wine_prefixes.h"

#include <windows.h>
// After windows.h.
#include <shlobj.h>

#include <array>

#include "platform/path_text.h"
#include "platform/windows/ansi_path.h"

namespace {

// Closed at the end of the block.
class RegistryKey {
 public:
    RegistryKey() = default;
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;
    ~RegistryKey() {
        if (key_ != nullptr) RegCloseKey(key_);
    }

    // In the view of 32-bit programs, which the game is.
    LSTATUS open(const char* key) {
        return RegOpenKeyExA(HKEY_LOCAL_MACHINE, key, 0, KEY_QUERY_VALUE | KEY_WOW64_32KEY, &key_);
    }
    LSTATUS create(const char* key) {
        return RegCreateKeyExA(HKEY_LOCAL_MACHINE, key, 0, nullptr, 0,
                               KEY_QUERY_VALUE | KEY_SET_VALUE | KEY_WOW64_32KEY, nullptr, &key_, nullptr);
    }

    // ERROR_FILE_NOT_FOUND if there is no such value.
    LSTATUS query(const char* name, std::string& text) const {
        std::array<char, 1024> value{};
        DWORD size = value.size() - 1;
        const LSTATUS status =
            RegQueryValueExA(key_, name, nullptr, nullptr, reinterpret_cast<LPBYTE>(value.data()), &size);
        if (status == ERROR_SUCCESS) text = value.data();
        return status;
    }

    LSTATUS set(const char* name, const std::string& text) const {
        return RegSetValueExA(key_, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                              static_cast<DWORD>(text.size() + 1));
    }

 private:
    HKEY key_ = nullptr;
};

bool isDirectory(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

LSTATUS registered(const std::string& directory, const char* key, const char* value) {
    RegistryKey registry;
    std::string present;
    if (const LSTATUS status = registry.create(key); status != ERROR_SUCCESS) return status;
    // Another program's value is never replaced.
    const LSTATUS status = registry.query(value, present);
    if (status == ERROR_SUCCESS && !present.empty()) return ERROR_ALREADY_EXISTS;
    if (status != ERROR_SUCCESS && status != ERROR_FILE_NOT_FOUND) return status;
    return registry.set(value, directory);
}

}  // namespace

bool hasWinePrefixes() {
    return false;
}

std::string chosenWinePrefix() {
    return "";
}

void useWinePrefix(const std::string&) {}

std::vector<std::string> winePrefixPlaces() {
    return {};
}

std::vector<std::string> foundWinePrefixes() {
    return {""};
}

std::string winePrefixAt(const std::string&) {
    return "";
}

std::string winePrefixAbove(const std::string&) {
    return "";
}

RegisteredDirectory registeredDirectory(const std::string&, const char* key, const char* name) {
    RegistryKey registry;
    std::string text;
    if (registry.open(key) != ERROR_SUCCESS || registry.query(name, text) != ERROR_SUCCESS || text.empty()) return {};
    std::vector<std::string> directories;
    if (isDirectory(text)) directories.push_back(absolutePath(text));
    return {text, directories};
}

std::vector<std::string> usersDirectories(const std::string&, const std::string& below) {
    std::array<wchar_t, MAX_PATH> profile{};
    if (FAILED(SHGetFolderPathW(nullptr, CSIDL_PROFILE, nullptr, SHGFP_TYPE_CURRENT, profile.data()))) return {};
    const std::string path = ansiPath(profile.data()) + '\\' + below;
    return isDirectory(path) ? std::vector{path} : std::vector<std::string>{};
}

bool registerDirectory(const std::string& directory, const std::string&, const char* key, const char* value) {
    const LSTATUS status = registered(directory, key, value);
    SetLastError(static_cast<DWORD>(status));
    return status == ERROR_SUCCESS;
}
