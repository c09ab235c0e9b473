#include "start/old_versions.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/letter_case.h"
#include "platform/part_names.h"
#include "world/paths.h"

namespace {

constexpr std::int64_t never = -1;

std::string joined(const std::string& directory, std::string_view name) {
    return (directory + '\\').append(name);
}

std::int64_t timeOf(const std::string& path) {
    FileStatus status{};
    return queryFileStatus(path.c_str(), status) ? status.written : never;
}

}  // namespace

std::string newestBackupOf(const std::string& directory, const std::string& file) {
    const std::string stem = lowered(file.substr(0, file.rfind('.') + 1));
    const std::string inDirectory = std::string(backupsDirectory) + '\\';
    std::string newest;
    std::int64_t time = never;
    for (const std::string& name : fileNamesIn(joined(directory, backupsDirectory).c_str())) {
        if (!lowered(name).starts_with(stem) || !lowered(name).ends_with(".iff")) continue;
        const std::string backup = inDirectory + name;
        const std::int64_t written = timeOf(joined(directory, backup));
        if (written == never || written < time) continue;
        newest = backup;
        time = written;
    }
    return newest;
}

std::string asideOf(const std::string& directory, const std::string& file) {
    const std::vector<std::string> names = fileNamesIn(directory.c_str());
    const auto aside =
        std::ranges::find_if(names, [&](const std::string& name) { return equalInAnyCase(fileOfAside(name), file); });
    return aside != names.end() ? *aside : "";
}

std::string backupSince(std::int64_t begin, const std::string& directory, const std::string& file) {
    const std::string backup = newestBackupOf(directory, file);
    return !backup.empty() && timeOf(joined(directory, backup)) >= begin ? backup : "";
}
