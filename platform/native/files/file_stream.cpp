#include "platform/native/files/file_stream.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "platform/native/api/system.h"
#include "platform/native/base/last_error.h"
#include "platform/native/files/path_status.h"

namespace {

// Null on failure, with the last error set and the descriptor closed.
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

bool isRefused(const struct stat& status, int flags) {
    if (S_ISDIR(status.st_mode) || S_ISFIFO(status.st_mode) || S_ISSOCK(status.st_mode)) return true;
    return (flags & O_ACCMODE) != O_RDONLY && isWriteProtected(status);
}

std::FILE* openStream(const NativePath& file, int flags, const char* mode) {
    struct stat status = {};
    const bool isThere = fstatat(file.directory, file.name.c_str(), &status, 0) == 0;
    const bool isNew = !isThere && errno == ENOENT;
    if (isThere && isRefused(status, flags)) {
        SetLastError(ERROR_ACCESS_DENIED);
        return nullptr;
    }
    // O_NONBLOCK: a pipe may have taken the name just now, and opening it must not wait. It doesn't matter for regular
    // files.
    constexpr int always = O_CLOEXEC | O_NOCTTY | O_NONBLOCK;
    constexpr mode_t everybodyButUmask = 0666;
    const int descriptor = openat(file.directory, file.name.c_str(), (flags & ~O_TRUNC) | always, everybodyButUmask);
    if (descriptor < 0) {
        setPathError(errno, file);
        return nullptr;
    }
    std::FILE* stream = streamOf(descriptor, mode);
    // Emptied last, when nothing else can fail. Devices have no length.
    const bool isEmptied = stream != nullptr && (flags & O_TRUNC) != 0;
    if (isEmptied && ftruncate(descriptor, 0) != 0 && errno != EINVAL) {
        SetLastError(windowsError(errno));
        std::fclose(stream);
        stream = nullptr;
    }
    if (stream == nullptr && isNew) unlinkat(file.directory, file.name.c_str(), 0);
    return stream;
}

bool syncToDisk(int descriptor) {
    return fsync(descriptor) == 0 || errno == EINVAL || errno == ENOTSUP;
}
