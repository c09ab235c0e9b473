#include "platform/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <string_view>

#include "platform/native/last_error.h"
#include "platform/native/paths.h"
#include "platform/native/permissions.h"
#include "platform/native/system.h"

namespace {

constexpr struct OpenMode {
    std::string_view name;
    int flags;
} openModes[] = {
    {"rb", O_RDONLY},
    {"r+b", O_RDWR},
    {"wb", O_WRONLY | O_CREAT | O_TRUNC},
    {"w+b", O_RDWR | O_CREAT | O_TRUNC},
    {"ab", O_WRONLY | O_CREAT | O_APPEND},
    {"a+b", O_RDWR | O_CREAT | O_APPEND},
};

// Asked before the opening, because opening already does things: it waits for the other end of a pipe, it empties a
// file.
bool isRefused(const struct stat& status, int flags) {
    if (S_ISDIR(status.st_mode) || S_ISFIFO(status.st_mode) || S_ISSOCK(status.st_mode)) return true;
    return (flags & O_ACCMODE) != O_RDONLY && isWriteProtected(status);
}

std::FILE* streamOf(int descriptor, const char* mode) {
    std::FILE* stream = fdopen(descriptor, mode);
    if (stream == nullptr) {
        SetLastError(windowsError(errno));
        close(descriptor);
        return nullptr;
    }
    std::setvbuf(stream, nullptr, _IONBF, 0);
    return stream;
}

}  // namespace

std::FILE* openFile(const char* path, const char* mode) {
    const auto* const found =
        std::find_if(std::begin(openModes), std::end(openModes), [&](const OpenMode& m) { return m.name == mode; });
    if (found == std::end(openModes)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    const NativePath file = locate(path);
    struct stat status = {};
    if (fstatat(file.directory, file.name.c_str(), &status, 0) == 0 && isRefused(status, found->flags)) {
        SetLastError(ERROR_ACCESS_DENIED);
        return nullptr;
    }
    // O_NONBLOCK: should a pipe have taken the name just now, this must not wait for it. Regular files don't know it.
    constexpr mode_t everybodyButUmask = 0666;
    const int descriptor =
        openat(file.directory, file.name.c_str(), found->flags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, everybodyButUmask);
    if (descriptor < 0) {
        setPathError(errno, file);
        return nullptr;
    }
    return streamOf(descriptor, mode);
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
        status = {writable ? writableDirectoryMode : readOnlyDirectoryMode, 0};
    } else {
        status = {writable ? writableFileMode : readOnlyFileMode, found.st_size};
    }
    return true;
}

SteadyDirectories::SteadyDirectories() {
    beginSteadyDirectories();
}

SteadyDirectories::~SteadyDirectories() {
    endSteadyDirectories();
}

bool syncFile(std::FILE* file) {
    if (std::fflush(file) != 0) return false;
    // A device or file system that knows no sync has nothing left to do.
    return fsync(fileno(file)) == 0 || errno == EINVAL || errno == ENOTSUP;
}
