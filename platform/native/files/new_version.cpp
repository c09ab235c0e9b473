#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <utility>

#include "platform/files.h"
#include "platform/native/api/system.h"
#include "platform/native/base/last_error.h"
#include "platform/native/files/directory_listing.h"
#include "platform/native/files/file_stream.h"
#include "platform/native/files/path_error.h"
#include "platform/native/files/permissions.h"

struct NewVersion::State {
    bool close() { return stream == nullptr || std::fclose(std::exchange(stream, nullptr)) == 0; }

    // Once the older file has been moved away, the new one is spelled as the program wrote it, and not like another
    // file whose name differs in case only.
    void useNewNameIfFree() {
        struct stat status = {};
        const bool isFree =
            fstatat(file.directory, file.name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0 && errno == ENOENT;
        if (isFree) file.name = newName;
    }

    NativePath file{-1, {}, false};  // this object owns the open directory; -1 if that failed
    std::string newName;
    DWORD directoryError = NO_ERROR;
    std::FILE* stream = nullptr;
    bool isNamedPart = false;  // has the name already, but isn't complete
};

namespace {

// The names of the process's open files. Linking a file without a name needs one.
constexpr const char* openFiles = "/proc/self/fd/";

int openParent(const NativePath& file) {
    const std::size_t slash = file.name.rfind('/');
    const std::string parent = slash == std::string::npos ? "." : file.name.substr(0, std::max<std::size_t>(slash, 1));
    return openat(file.directory, parent.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

// Whether the file that has the name now may be replaced. True if there is none.
bool isReplaceable(const NativePath& file) {
    struct stat status = {};
    if (fstatat(file.directory, file.name.c_str(), &status, 0) != 0) {
        const int error = errno;
        setPathError(error, file);
        return error == ENOENT;
    }
    if (!isRefused(status, O_WRONLY) && mayWrite(file, status)) return true;
    SetLastError(ERROR_ACCESS_DENIED);
    return false;
}

std::FILE* openUnnamed(int directory) {
    constexpr mode_t everybodyButUmask = 0666;
    const int descriptor = openat(directory, ".", O_TMPFILE | O_WRONLY | O_CLOEXEC, everybodyButUmask);
    if (descriptor >= 0) return streamOf(descriptor, "wb");
    // The errors of kernels and file systems without O_TMPFILE.
    const bool isUnknown = errno == EOPNOTSUPP || errno == EISDIR || errno == EINVAL;
    SetLastError(isUnknown ? ERROR_NOT_SUPPORTED : windowsError(errno));
    return nullptr;
}

bool link(std::FILE* unnamed, const NativePath& file) {
    const std::string opened = openFiles + std::to_string(fileno(unnamed));
    return linkat(AT_FDCWD, opened.c_str(), file.directory, file.name.c_str(), AT_SYMLINK_FOLLOW) == 0;
}

// Whether changes of directories reach the disk in the order in which they were made, across directories.
bool keepsOrder(int directory) {
    struct statfs status = {};
    if (fstatfs(directory, &status) != 0) return false;
    return status.f_type == EXT4_SUPER_MAGIC || status.f_type == XFS_SUPER_MAGIC;
}

// File systems without a sync of directories keep them in their own way.
bool settle(int directory) {
    return keepsOrder(directory) || fsync(directory) == 0 || errno == EINVAL || errno == ENOTSUP;
}

// Replaces the older file. False, with `errno` set, on failure.
bool replace(std::FILE* unnamed, const NativePath& file) {
    bool isLinked = link(unnamed, file);
    if (!isLinked && errno == EEXIST && unlinkat(file.directory, file.name.c_str(), 0) == 0) {
        isLinked = link(unnamed, file);
    }
    if (!isLinked || settle(file.directory)) return isLinked;
    const int error = errno;
    unlinkat(file.directory, file.name.c_str(), 0);
    errno = error;
    return false;
}

}  // namespace

NewVersion::NewVersion(const char* path) : state_(std::make_unique<State>()) {
    const NativePath found = locate(path);
    state_->file = {openParent(found), found.name.substr(found.name.rfind('/') + 1), false};
    const std::string_view written = path;
    state_->newName = nameToCreate(written.substr(written.find_last_of("\\/") + 1));
    if (state_->file.directory >= 0) return;
    setPathError(errno, found);
    state_->directoryError = GetLastError();
}

NewVersion::~NewVersion() {
    discard();
    if (state_->file.directory >= 0) close(state_->file.directory);
}

std::FILE* NewVersion::open(Naming naming) {
    if (state_->file.directory < 0) {
        SetLastError(state_->directoryError);
        return nullptr;
    }
    if (naming == Naming::atOnce) {
        state_->useNewNameIfFree();
        state_->stream = openStream(state_->file, O_WRONLY | O_CREAT | O_TRUNC, "wb");
        state_->isNamedPart = state_->stream != nullptr;
    } else if (isReplaceable(state_->file)) {
        state_->stream = openUnnamed(state_->file.directory);
    }
    return state_->stream;
}

bool NewVersion::complete() {
    bool isWhole = syncFile(state_->stream);
    // A file without a name must stay open. With all data on the disk, closing it can't fail any more.
    if (state_->isNamedPart) isWhole = state_->close() && isWhole;
    if (!isWhole) discard();
    return isWhole;
}

bool NewVersion::giveName() {
    if (!state_->isNamedPart) state_->useNewNameIfFree();
    const bool isNamed = state_->isNamedPart ? settle(state_->file.directory) : replace(state_->stream, state_->file);
    if (!isNamed) {
        // ENOENT: /proc is missing, so the file can't be linked either.
        const bool isUnknown = errno == EOPNOTSUPP || errno == EPERM || errno == ENOENT;
        SetLastError(isUnknown ? ERROR_NOT_SUPPORTED : windowsError(errno));
        discard();
        return false;
    }
    state_->isNamedPart = false;
    state_->close();
    return true;
}

void NewVersion::discard() {
    state_->close();
    if (state_->isNamedPart) unlinkat(state_->file.directory, state_->file.name.c_str(), 0);
    state_->isNamedPart = false;
}

// A part has no name here and disappears with its process.
void deleteLeftOverParts(const char*) {}
