#include "platform/wine_prefixes.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <memory>
#include <string_view>

#include "platform/files.h"
#include "platform/letter_case.h"
#include "platform/native/api/system.h"
#include "platform/native/base/text1252.h"
#include "platform/native/files/path_status.h"
#include "platform/native/files/paths.h"
#include "platform/native/registry/registry_file.h"
#include "platform/path_text.h"

namespace {

constexpr std::string_view software = "Software\\";
constexpr std::string_view softwareOf32Bit = "Software\\Wow6432Node\\";

// Below the home directory. "*" is any directory.
constexpr const char* places[] = {
    ".wine",
    "Games/*",
    "Games/Heroic/Prefixes/*",
    "Games/Heroic/Prefixes/*/*",
    ".steam/steam/steamapps/compatdata/*/pfx",
    ".local/share/Steam/steamapps/compatdata/*/pfx",
    ".var/app/com.valvesoftware.Steam/.steam/steam/steamapps/compatdata/*/pfx",
    ".var/app/com.valvesoftware.Steam/.local/share/Steam/steamapps/compatdata/*/pfx",
    ".local/share/bottles/bottles/*",
    ".var/app/com.usebottles.bottles/data/bottles/bottles/*",
    ".PlayOnLinux/wineprefix/*",
    ".local/share/wineprefixes/*",
    ".cxoffice/*",
};

bool isDirectory(const std::string& path) {
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool isPrefix(const std::string& path) {
    struct stat status = {};
    return stat((path + "/system.reg").c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

std::string inside(const std::string& directory, const std::string& name) {
    return std::string(directory).append("/").append(name);
}

// The names of the directories in a directory, sorted.
std::vector<std::string> directoriesIn(const std::string& path) {
    std::vector<std::string> names;
    const auto close = [](DIR* directory) { closedir(directory); };
    const std::unique_ptr<DIR, decltype(close)> directory(opendir(path.c_str()), close);
    while (const dirent* const entry = directory != nullptr ? readdir(directory.get()) : nullptr) {
        const std::string name = entry->d_name;
        if (name != "." && name != ".." && isDirectory(inside(path, name))) names.push_back(name);
    }
    std::ranges::sort(names);
    return names;
}

// The directories below `base` that the pattern means.
std::vector<std::string> expanded(const std::string& base, std::string_view pattern) {
    std::vector<std::string> paths{base};
    while (!pattern.empty()) {
        const std::size_t end = std::min(pattern.find('/'), pattern.size());
        const std::string component(pattern.substr(0, end));
        pattern.remove_prefix(std::min(end + 1, pattern.size()));
        std::vector<std::string> deeper;
        for (const std::string& path : paths) {
            for (const std::string& name : component == "*" ? directoriesIn(path) : std::vector{component}) {
                if (isDirectory(inside(path, name))) deeper.push_back(inside(path, name));
            }
        }
        paths = std::move(deeper);
    }
    return paths;
}

std::string homeDirectory() {
    return absolutePath("~");
}

// What Wine's link to a drive leads to. Without links, drive C is where Wine makes it.
std::string driveDirectory(const std::string& prefix, char letter) {
    const std::string link = prefix + "/dosdevices/" + lowerCase(letter) + ':';
    return lowerCase(letter) == 'c' && !isDirectory(link) ? prefix + "/drive_c" : realPath(link);
}

// Whether a system may have made the short name of it: the letters in front of "~", without spaces and dots or with
// "_" in place of them.
bool mayBeShort(std::string_view shortName, std::string_view name) {
    const std::string_view begin = shortName.substr(0, shortName.find('~'));
    std::string letters;
    std::string marked;
    for (const char c : name) {
        if (c != ' ' && c != '.') letters += c;
        marked += c == ' ' || c == '.' ? '_' : c;
    }
    return equalInAnyCase(std::string_view(letters).substr(0, begin.size()), begin) ||
           equalInAnyCase(std::string_view(marked).substr(0, begin.size()), begin);
}

// The existing directories that a path below `base` may mean.
std::vector<std::string> meantDirectories(const std::string& base, std::string_view path) {
    std::vector<std::string> meant{base};
    while (!path.empty()) {
        const std::size_t end = std::min(path.find_first_of("\\/"), path.size());
        const std::string component(path.substr(0, end));
        path.remove_prefix(std::min(end + 1, path.size()));
        if (component.empty()) continue;
        std::vector<std::string> deeper;
        for (const std::string& directory : meant) {
            const std::string exact = nativePath(inside(directory, component).c_str());
            if (isDirectory(exact)) {
                deeper.push_back(exact);
                continue;
            }
            if (component.find('~') == std::string::npos) continue;
            for (const std::string& name : directoriesIn(directory)) {
                if (mayBeShort(component, name)) deeper.push_back(inside(directory, name));
            }
        }
        meant = std::move(deeper);
    }
    return meant;
}

// As RegQueryValueExA chooses.
std::string registeredText(const std::string& prefix, std::string_view key, std::string_view name) {
    const std::string file = readRegistryFile(prefix + "/system.reg");
    std::vector<RegistryValue> values;
    readRegistryKey(file, key, values);
    if (equalInAnyCase(key.substr(0, software.size()), software)) {
        readRegistryKey(file, std::string(softwareOf32Bit).append(key.substr(software.size())), values);
    }
    const auto found = std::find_if(values.rbegin(), values.rend(),
                                    [&](const RegistryValue& value) { return equalInAnyCase(value.name, name); });
    return found != values.rend() ? found->utf8 : "";
}

// The drive that a prefix of our own has: its path is as short as can be.
constexpr const char* ownDrive = "g:";

// Text for Wine's form of a registry.
std::string escaped(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        if (c == '\\' || c == '"') escaped += '\\';
        escaped += c;
    }
    return escaped;
}

bool writeRegistry(const std::string& prefix, const char* key, const char* name) {
    const std::string text = "WINE REGISTRY Version 2\n\n[" + escaped(key) + "]\n\"" + escaped(name) + "\"=\"G:\"\n";
    const std::string path = prefix + "/system.reg";
    if (readRegistryFile(path) == text) return true;
    NewVersion version(path.c_str());
    std::FILE* const file = version.open(path.c_str());
    if (file == nullptr || std::fwrite(text.data(), 1, text.size(), file) != text.size()) return false;
    return version.complete() && version.giveName();
}

// Whether the prefix has the drive, or gets it now. A link is made in one step, so what another process makes at the
// same time is whole as well.
bool hasOwnDrive(const std::string& prefix, const std::string& directory) {
    const std::string drives = prefix + "/dosdevices";
    const std::string link = drives + '/' + ownDrive;
    mkdir(prefix.c_str(), 0777);
    mkdir(drives.c_str(), 0777);
    if (symlink(directory.c_str(), link.c_str()) == 0) return true;
    std::array<char, PATH_MAX> target{};
    const ssize_t length = readlink(link.c_str(), target.data(), target.size());
    return length > 0 && std::string_view(target.data(), static_cast<std::size_t>(length)) == directory;
}

}  // namespace

bool hasWinePrefixes() {
    return true;
}

std::string chosenWinePrefix() {
    const char* const variable = std::getenv("WINEPREFIX");
    return variable != nullptr && *variable != '\0' ? absolutePath(variable) : "";
}

void useWinePrefix(const std::string& prefix) {
    setenv("WINEPREFIX", prefix.c_str(), 1);
}

std::vector<std::string> winePrefixPlaces() {
    std::vector<std::string> shown;
    for (const char* const place : places) {
        shown.push_back(std::string("~/") + place);
    }
    return shown;
}

std::vector<std::string> foundWinePrefixes() {
    std::vector<std::string> found;
    std::vector<std::string> real;
    for (const char* const place : places) {
        for (const std::string& path : expanded(homeDirectory(), place)) {
            if (!isPrefix(path) || std::ranges::find(real, realPath(path)) != real.end()) continue;
            found.push_back(path);
            real.push_back(realPath(path));
        }
    }
    return found;
}

std::string winePrefixAt(const std::string& directory) {
    for (const char* const below : {"", "/pfx"}) {
        if (isPrefix(directory + below)) return directory + below;
    }
    return "";
}

std::string winePrefixAbove(const std::string& directory) {
    std::string above = directory;
    while (above.size() > 1) {
        above.resize(std::max<std::size_t>(above.rfind('/'), 1));
        if (isPrefix(above)) return above;
    }
    return "";
}

RegisteredDirectory registeredDirectory(const std::string& prefix, const char* key, const char* name) {
    const std::string text = registeredText(prefix, key, name);
    if (text.empty()) return {};
    const std::string shown = text1252FromUtf8(text);
    if (text[0] == '/') return {shown, meantDirectories("/", text)};
    if (text.size() < 2 || text[1] != ':') return {shown, {}};
    return {shown, meantDirectories(driveDirectory(prefix, text[0]), text.substr(2))};
}

std::vector<std::string> usersDirectories(const std::string& prefix, const std::string& below) {
    std::vector<std::string> found;
    for (const std::string& user : expanded(driveDirectory(prefix, 'c'), "users/*")) {
        const std::string path = nativePath(inside(user, below).c_str());
        if (isDirectory(path)) found.push_back(path);
    }
    return found;
}

bool registerDirectory(const std::string& directory, const std::string& place, const char* key, const char* value) {
    constexpr int mostPrefixes = 1000;
    mkdir(place.c_str(), 0777);
    for (int number = 1; number <= mostPrefixes; ++number) {
        const std::string prefix = place + '/' + std::to_string(number);
        if (!hasOwnDrive(prefix, directory)) {
            struct stat status = {};
            if (lstat((prefix + "/dosdevices/" + ownDrive).c_str(), &status) == 0) continue;
            setPathError(errno, locate(prefix.c_str()));
            return false;
        }
        if (!writeRegistry(prefix, key, value)) return false;
        useWinePrefix(prefix);
        return true;
    }
    SetLastError(ERROR_ALREADY_EXISTS);
    return false;
}
