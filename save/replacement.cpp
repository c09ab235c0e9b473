#include "save/replacement.h"

#include "platform/win32.h"
#include "save/save_paths.h"

namespace {

constexpr std::int32_t notAsExpected = -1;

}  // namespace

void Replacement::backUp(const std::optional<ContentSum>& expected) {
    hasBackup_ = tryBackUp(expected) || (error_ == copyError::none && tryBackUp(expected));
    if (isPrepared_ || error_ != copyError::none) return;
    ContentSum live;
    if (expected) sumOfFile(live_.c_str(), live);
    prepareInstall(live, expected);
}

// The backup's copy is made first, so that the other one can't take its room on the disk. It gets its name last, so
// that a save that fails doesn't replace the older backup of that day.
bool Replacement::tryBackUp(const std::optional<ContentSum>& expected) {
    CreateDirectoryA(backupsDirectory, nullptr);  // usually it exists already
    StagedCopy copy(live_.c_str(), backup_.c_str(), live_.c_str());
    return succeeded(copy.make()) && prepareInstall(copy.sum(), expected) && succeeded(copy.giveName()) &&
           copy.isOnDisk();
}

bool Replacement::prepareInstall(const ContentSum& live, const std::optional<ContentSum>& expected) {
    if (expected && live != *expected) error_ = notAsExpected;
    if (error_ == copyError::none && !isPrepared_) error_ = install_.make();
    isPrepared_ = error_ == copyError::none;
    return isPrepared_;
}

// A file that another program holds is left to it, whatever else could be done.
bool Replacement::succeeded(std::int32_t error) {
    if (isHeldByAnother(error)) error_ = error;
    return error == copyError::none;
}

std::int32_t Replacement::install() {
    if (error_ == copyError::none) error_ = install_.setAside();
    if (error_ == copyError::none) error_ = install_.giveName();
    if (error_ != copyError::none) return error_;
    // Without a backup the old file is the only copy of its version. The next save deletes it.
    if (hasBackup_ && install_.isOnDisk()) install_.deleteAside();
    install_.deleteSource();
    return copyError::none;
}
