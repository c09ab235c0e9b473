#include "platform/part_names.h"

#include "platform/files.h"
#include "platform/win32.h"

namespace {

constexpr std::string_view partSuffix = ".tidewright-new";
constexpr std::string_view asideSuffix = ".tidewright-old";
static_assert(partSuffix.size() == asideSuffix.size());

std::string numbered(std::string_view file, std::string_view suffix, int number) {
    return std::string(file).append(suffix) + static_cast<char>('0' + number);
}

// What the name is made from; empty if it isn't made with this suffix.
std::string_view fileOf(std::string_view name, std::string_view suffix) {
    if (name.size() <= suffix.size() + 1) return {};
    const std::string_view file = name.substr(0, name.size() - suffix.size() - 1);
    const char number = name.back();
    return name.substr(file.size(), suffix.size()) == suffix && number >= '0' && number <= '9' ? file : "";
}

}  // namespace

std::string partName(std::string_view file, int number) {
    return numbered(file, partSuffix, number);
}

std::string asideName(std::string_view file, int number) {
    return numbered(file, asideSuffix, number);
}

void deleteLeftOverParts(const char* directory) {
    const std::string prefix = std::string(directory) + '\\';
    for (const std::string& name : fileNamesIn(directory)) {
        const std::string aside = prefix + std::string(fileOf(name, asideSuffix));
        FileStatus status{};
        const bool isReplaced = aside != prefix && queryFileStatus(aside.c_str(), status);
        if (isReplaced || !fileOf(name, partSuffix).empty()) DeleteFileA((prefix + name).c_str());
    }
}
