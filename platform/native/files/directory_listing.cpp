#include "platform/native/files/directory_listing.h"

#include <sys/statvfs.h>

#include "platform/letter_case.h"
#include "platform/native/base/text1252.h"

std::string nameToCreate(std::string_view written) {
    return isUtf8(written) ? std::string(written) : utf8From1252(written);
}

std::optional<DirectoryListing> DirectoryListing::read(const std::string& path) {
    DIR* const directory = opendir(path.c_str());
    if (directory == nullptr) return std::nullopt;
    return DirectoryListing(directory);
}

DirectoryListing::DirectoryListing(DIR* directory) : directory_(directory) {
    while (const dirent* entry = readdir(directory)) {
        names_.emplace(lowered(entry->d_name), entry->d_name);
    }
    struct statvfs mount = {};
    mountedForWriting_ = fstatvfs(descriptor(), &mount) == 0 && (mount.f_flag & ST_RDONLY) == 0;
}

std::string DirectoryListing::spell(std::string_view written) const {
    const std::string* const name = find(written);
    if (name != nullptr && *name == written) return *name;
    const std::string utf8 = utf8From1252(written);
    const std::string* const utf8Name = utf8 == written ? name : find(utf8);
    if (utf8Name != nullptr && (name == nullptr || *utf8Name == utf8)) return *utf8Name;
    return name != nullptr ? *name : nameToCreate(written);
}

// The exact match, else the first in byte order that differs in case only.
const std::string* DirectoryListing::find(std::string_view name) const {
    const std::string* best = nullptr;
    const auto [begin, end] = names_.equal_range(lowered(name));
    for (auto entry = begin; entry != end; ++entry) {
        if (entry->second == name) return &entry->second;
        if (best == nullptr || entry->second < *best) best = &entry->second;
    }
    return best;
}
