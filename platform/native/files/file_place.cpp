#include "platform/file_place.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "platform/native/api/system.h"
#include "platform/native/base/last_error.h"
#include "platform/native/files/file_stream.h"
#include "platform/native/files/path_status.h"

namespace {

bool done(int result) {
    if (result != 0) SetLastError(windowsError(errno));
    return result == 0;
}

// Some file systems have neither mode nor group. Where the user can't set the group, another group gets no right of it
// that not everybody has.
void takeModeAndGroup(std::FILE* file, const char* model) {
    const NativePath found = locate(model);
    struct stat status = {};
    if (fstatat(found.directory, found.name.c_str(), &status, 0) != 0) return;
    const bool hasGroup = fchown(fileno(file), static_cast<uid_t>(-1), status.st_gid) == 0;
    const mode_t kept = hasGroup ? 07777 : (07777 & ~S_IRWXG) | (status.st_mode & S_IRWXO) << 3;
    fchmod(fileno(file), status.st_mode & kept);  // last, because a new group takes some of the bits away
}

}  // namespace

bool FilePlace::renameReplaces() {
    return true;
}

FilePlace::FilePlace(const char* path) {
    const std::string file = nativePath(path);
    const std::size_t slash = file.rfind('/');
    const std::string parent = slash == std::string::npos ? "." : file.substr(0, std::max<std::size_t>(slash, 1));
    name_ = file.substr(slash + 1);
    directory_ = open(parent.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (directory_ < 0) error_ = errno == ENOENT ? ERROR_PATH_NOT_FOUND : windowsError(errno);
}

FilePlace::~FilePlace() {
    if (directory_ >= 0) close(directory_);
}

bool FilePlace::isReplaceable() const {
    if (directory_ < 0) {
        SetLastError(static_cast<DWORD>(error_));
        return false;
    }
    const NativePath file{directory_, name_, false};
    struct stat status = {};
    if (fstatat(directory_, name_.c_str(), &status, 0) != 0) return errno == ENOENT || done(-1);
    if (!isRefused(status, O_WRONLY) && mayWrite(file, status)) return true;
    SetLastError(ERROR_ACCESS_DENIED);
    return false;
}

bool FilePlace::isFree(const std::string& name) const {
    struct stat status = {};
    return fstatat(directory_, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0 && errno == ENOENT;
}

std::FILE* FilePlace::create(const std::string& name, const char* model) const {
    std::FILE* const file = openStream({directory_, name, false}, O_WRONLY | O_CREAT | O_EXCL, "wb");
    if (file != nullptr) takeModeAndGroup(file, model);
    return file;
}

bool FilePlace::rename(const std::string& from, const std::string& to) const {
    return done(renameat(directory_, from.c_str(), directory_, to.c_str()));
}

bool FilePlace::remove(const std::string& name) const {
    return done(unlinkat(directory_, name.c_str(), 0));
}

bool FilePlace::sync() const {
    return syncToDisk(directory_) || done(-1);
}
