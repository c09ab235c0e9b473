#include "save/replacement.h"

#include "platform/win32.h"
#include "world/paths.h"

namespace {

constexpr std::int32_t notAsSeen = -1;

// The path with the file's name as the directory spells it. To find a name that is spelled in another way takes a look
// at all the others each time.
std::string spelled(const char* path) {
    std::string found = path;
    WIN32_FIND_DATAA file{};
    const HANDLE search = FindFirstFileA(path, &file);
    if (search == INVALID_HANDLE_VALUE) return found;
    FindClose(search);
    return found.replace(found.find_last_of('\\') + 1, std::string::npos, file.cFileName);
}

}  // namespace

Replacement::Replacement(const char* live, const char* target, const char* backup, const char* temporary,
                         const std::optional<ContentSum>& expected)
    : live_(spelled(live)),
      backup_(backup),
      install_(temporary, spelled(target).c_str(), live_.c_str()),
      seen_(expected) {}

void Replacement::backUp() {
    for (int tries = 0; tries < 2 && !hasBackup_ && error_ == copyError::none; ++tries) {
        hasBackup_ = tryBackUp();
    }
    if (hasBackup_ || isPrepared_ || error_ != copyError::none) return;
    ContentSum live;
    if (sumOfFile(live_.c_str(), live) || seen_) {
        prepareInstall(live);
    } else {
        error_ = install_.make();
    }
}

// The backup's copy is made first, so that the other one can't take its room on the disk. It gets its name last, so
// that a save that fails doesn't replace the older backup of that day.
bool Replacement::tryBackUp() {
    CreateDirectoryA(backupsDirectory, nullptr);  // usually it exists already
    StagedCopy copy(live_.c_str(), backup_.c_str(), live_.c_str());
    if (!succeeded(copy.make()) || !prepareInstall(copy.sum())) return false;
    return succeeded(copy.giveName()) && copy.isOnDisk();
}

bool Replacement::prepareInstall(const ContentSum& live) {
    if (seen_ && live != *seen_) error_ = notAsSeen;
    seen_ = live;
    if (error_ == copyError::none && !isPrepared_) error_ = install_.make();
    isPrepared_ = error_ == copyError::none;
    return isPrepared_;
}

// A file that another program holds is left to it, whatever else could be done.
bool Replacement::succeeded(std::int32_t error) {
    if (isHeldByAnother(error)) error_ = error;
    return error == copyError::none;
}

bool Replacement::isLiveAsSeen() const {
    ContentSum live;
    return !seen_ || (sumOfFile(live_.c_str(), live) && live == *seen_);
}

std::int32_t Replacement::install() {
    if (error_ == copyError::none && !isLiveAsSeen()) error_ = notAsSeen;
    if (error_ == copyError::none) error_ = install_.setAside();
    if (error_ == copyError::none) error_ = install_.giveName();
    if (error_ != copyError::none) return error_;
    // Without a backup the old file is the only one of its version. It stays until the next save.
    if (hasBackup_ && install_.isOnDisk()) install_.deleteAside();
    install_.deleteSource();
    return copyError::none;
}
