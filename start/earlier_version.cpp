#include "start/earlier_version.h"

#include <optional>

#include "platform/path_text.h"
#include "platform/win32.h"
#include "prepare/whole_file.h"
#include "world/program_files.h"

namespace {

constexpr const char* players[] = {skinSetsName, characterTemplateName, familyTemplateName};

}  // namespace

std::vector<std::string> filesOfEarlierVersion(const std::string& simsDirectory) {
    std::vector<std::string> names;
    for (const char* name : players) {
        if (!hasBytes(name) && hasBytes((simsDirectory + name).c_str())) names.emplace_back(name);
    }
    return names;
}

std::string takeOver(const std::string& simsDirectory, const std::vector<std::string>& names) {
    for (const std::string& name : names) {
        const std::optional<Bytes> bytes = readWholeFile((simsDirectory + name).c_str());
        if (!bytes || !writeWholeFile(name.c_str(), *bytes)) return simsDirectory + name + " couldn't be copied.";
    }
    return "";
}

void deleteLinksOfVersion100() {
    FileStatus status{};
    for (const char* name : players) {
        if (!linkTarget(name).starts_with("/usr/share/tidewright/") || queryFileStatus(name, status)) continue;
        DeleteFileA(name);  // if it stays, it is named with what else is missing
    }
}
