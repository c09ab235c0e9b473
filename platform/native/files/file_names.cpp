#include <dirent.h>

#include <algorithm>

#include "platform/files.h"
#include "platform/native/base/text1252.h"
#include "platform/native/files/paths.h"

std::vector<std::string> fileNamesIn(const char* directory) {
    std::vector<std::string> names;
    DIR* const entries = opendir(nativePath(directory).c_str());
    if (entries == nullptr) return names;
    while (const dirent* entry = readdir(entries)) {
        if (entry->d_type != DT_DIR) names.push_back(text1252FromUtf8(entry->d_name));
    }
    closedir(entries);
    std::ranges::sort(names);
    return names;
}
