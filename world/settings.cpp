#include "world/settings.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>

#include "platform/file_place.h"
#include "platform/files.h"
#include "platform/letter_case.h"
#include "platform/path_text.h"
#include "platform/win32.h"

namespace {

constexpr std::size_t longestFile = 64'000;  // far more than the choices take

// Empty if it can't be read. A longer file is cut.
std::string textOf(const std::string& path) {
    std::FILE* const file = openFile(path.c_str(), "rb");
    if (file == nullptr) return "";
    std::string text(longestFile, '\0');
    text.resize(std::fread(text.data(), 1, text.size(), file));
    std::fclose(file);
    return text;
}

// A remark, a section, a value, or nothing.
bool isOfSettings(std::string_view line) {
    constexpr std::string_view blanks = " \t";
    line.remove_prefix(std::min(line.find_first_not_of(blanks), line.size()));
    if (std::ranges::any_of(line, [](char c) { return (c >= 0 && c < ' ' && c != '\t') || c == 127; })) return false;
    if (line.empty() || line.front() == ';' || line.front() == '#') return true;
    if (line.front() == '[') return line.find(']') != std::string_view::npos;
    return line.find('=') != std::string_view::npos && line.front() != '=';
}

bool isOurSection(std::string_view line) {
    return std::ranges::any_of(std::array{settingsSection::game, settingsSection::editions},
                               [&](const char* name) { return equalInAnyCase(line, '[' + std::string(name) + ']'); });
}

bool isDamaged(const std::string& path) {
    const std::string text = textOf(path);
    if (text.empty()) return false;
    bool hasOurs = false;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        std::string_view line = std::string_view(text).substr(at, end - at);
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (!isOfSettings(line)) return true;
        hasOurs = hasOurs || isOurSection(line);
        at = end + 1;
    }
    return !hasOurs || text.size() == longestFile;
}

}  // namespace

std::string faultOfSettings(const std::string& path) {
    return isDamaged(path) ? shownPath(path) + " is damaged. What was chosen there is ignored." : "";
}

std::string readSetting(const std::string& path, const char* section, const char* name) {
    if (isDamaged(path)) return "";
    std::array<char, 1024> text{};
    GetPrivateProfileStringA(section, name, "", text.data(), text.size(), path.c_str());
    return text.data();
}

bool writeSetting(const std::string& path, const char* section, const char* name, const std::string& value) {
    if (isDamaged(path)) {
        const FilePlace place(path.c_str());
        if (!place.rename(place.name(), place.name() + ".damaged")) return false;
    }
    return WritePrivateProfileStringA(section, name, value.empty() ? nullptr : value.c_str(), path.c_str()) != FALSE;
}
