#include "start/earlier_version.h"

#include <optional>

#include "prepare/whole_file.h"
#include "world/program_files.h"

std::vector<std::string> filesOfEarlierVersion(const std::string& simsDirectory) {
    std::vector<std::string> names;
    for (const char* name : {skinSetsName, characterTemplateName, familyTemplateName}) {
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
