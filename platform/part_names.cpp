#include "platform/part_names.h"

#include "platform/file_place.h"
#include "platform/files.h"

namespace {

constexpr std::string_view partSuffix = ".tidewright-new";
constexpr std::string_view asideSuffix = ".tidewright-old";
static_assert(partSuffix.size() == asideSuffix.size());

std::string numbered(std::string_view file, std::string_view suffix, int number) {
    return std::string(file).append(suffix) + static_cast<char>('0' + number);
}

// What the name is made from; empty if it isn't made with this suffix.
std::string fileOf(std::string_view name, std::string_view suffix) {
    if (name.size() <= suffix.size() + 1) return {};
    const std::string_view file = name.substr(0, name.size() - suffix.size() - 1);
    const char number = name.back();
    const bool isMade = name.substr(file.size(), suffix.size()) == suffix && number >= '0' && number <= '9';
    return std::string(isMade ? file : "");
}

// Where the process ended between the two renames, the older file gets its name back. Else the new one has the name; it
// must be on the disk before the older one goes.
void clearAside(const FilePlace& place, int number) {
    const std::string aside = asideName(place.name(), number);
    if (place.isFree(place.name())) {
        place.rename(aside, place.name());
    } else if (place.sync()) {
        place.remove(aside);
    }
}

}  // namespace

std::string partName(std::string_view file, int number) {
    return numbered(file, partSuffix, number);
}

std::string asideName(std::string_view file, int number) {
    return numbered(file, asideSuffix, number);
}

std::string fileOfPart(std::string_view name) {
    return fileOf(name, partSuffix);
}

std::string fileOfAside(std::string_view name) {
    return fileOf(name, asideSuffix);
}

void clearLeftOverParts(const char* directory) {
    const std::string prefix = std::string(directory) + '\\';
    for (const std::string& name : fileNamesIn(directory)) {
        const std::string replaced = fileOfAside(name);
        if (!replaced.empty()) clearAside(FilePlace((prefix + replaced).c_str()), name.back() - '0');
    }
    clearUnfinishedParts(directory);
}

void clearUnfinishedParts(const char* directory) {
    const std::string prefix = std::string(directory) + '\\';
    for (const std::string& name : fileNamesIn(directory)) {
        const std::string unfinished = fileOfPart(name);
        if (unfinished.empty()) continue;
        const FilePlace place((prefix + unfinished).c_str());
        place.remove(partName(place.name(), name.back() - '0'));
    }
}
