#include "platform/files.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <string_view>

#include "platform/native/api/file_system.h"
#include "platform/native/api/system.h"
#include "platform/native/base/text1252.h"
#include "platform/native/files/file_stream.h"
#include "platform/native/files/path_status.h"
#include "platform/native/files/paths.h"

namespace {

constexpr struct OpenMode {
    std::string_view name;
    int flags;
} openModes[] = {
    {"rb", O_RDONLY},
    {"r+b", O_RDWR},
    {"wb", O_WRONLY | O_CREAT | O_TRUNC},
    {"ab", O_WRONLY | O_CREAT | O_APPEND},
    {"a+b", O_RDWR | O_CREAT | O_APPEND},
};

}  // namespace

std::FILE* openFile(const char* path, const char* mode) {
    const auto* const found =
        std::find_if(std::begin(openModes), std::end(openModes), [&](const OpenMode& m) { return m.name == mode; });
    if (found == std::end(openModes)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    return openStream(locate(path), found->flags, mode);
}

// No other program can exclude this one from a file here.
std::FILE* openWhenFree(const char* path, const char* mode) {
    return openFile(path, mode);
}

bool deleteWhenFree(const char* path) {
    return DeleteFileA(path) != FALSE;
}

bool queryFileStatus(const char* path, FileStatus& status) {
    const NativePath file = locate(path);
    struct stat found = {};
    if (fstatat(file.directory, file.name.c_str(), &found, 0) != 0) {
        setPathError(errno, file);
        return false;
    }
    const bool writable = mayWrite(file, found);
    if (S_ISDIR(found.st_mode)) {
        status = {writable ? writableDirectoryMode : readOnlyDirectoryMode, 0, found.st_mtime};
    } else {
        status = {writable ? writableFileMode : readOnlyFileMode, found.st_size, found.st_mtime};
    }
    return true;
}

std::int64_t freeRoomIn(const char* directory) {
    struct statvfs disk = {};
    if (statvfs(nativePath(directory).c_str(), &disk) != 0) return -1;
    return static_cast<std::int64_t>(disk.f_bavail) * static_cast<std::int64_t>(disk.f_frsize);
}

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

bool isSameFile(const char* first, const char* second) {
    struct stat one = {}, other = {};
    const auto query = [](const char* path, struct stat& status) {
        const NativePath file = locate(path);
        return fstatat(file.directory, file.name.c_str(), &status, 0) == 0;
    };
    return query(first, one) && query(second, other) && one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

bool syncDirectory(const char* path) {
    const NativePath directory = locate(path);
    const int opened = openat(directory.directory, directory.name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (opened < 0) return false;
    const bool isSynced = syncToDisk(opened);
    close(opened);
    return isSynced;
}

bool syncFile(std::FILE* file) {
    return std::fflush(file) == 0 && syncToDisk(fileno(file));
}
