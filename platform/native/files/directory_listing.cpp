#include "platform/native/files/directory_listing.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/statvfs.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>

#include "platform/native/base/text1252.h"

namespace {

constexpr std::int64_t nanosecondsPerSecond = 1'000'000'000;
// The coarsest tick of a kernel's file times is 10 ms; file systems that count whole seconds, or FAT's two, show no
// fraction.
constexpr std::int64_t fineGranule = 20'000'000;
constexpr std::int64_t coarseGranule = 3 * nanosecondsPerSecond;

std::int64_t nanoseconds(const timespec& time) {
    return time.tv_sec * nanosecondsPerSecond + time.tv_nsec;
}

timespec now(clockid_t clock) {
    timespec time = {};
    clock_gettime(clock, &time);
    return time;
}

// Whether a change that comes after `listed` is bound to give the directory other times than it has.
bool isSettled(const struct stat& directory, const timespec& listed) {
    const std::int64_t changed = std::max(nanoseconds(directory.st_mtim), nanoseconds(directory.st_ctim));
    const std::int64_t granule = changed % nanosecondsPerSecond == 0 ? coarseGranule : fineGranule;
    return nanoseconds(listed) - changed > granule;
}

// The change time is compared too: programs that unpack archives set the other one back.
bool isSameState(const struct stat& a, const struct stat& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino && nanoseconds(a.st_mtim) == nanoseconds(b.st_mtim) &&
           nanoseconds(a.st_ctim) == nanoseconds(b.st_ctim);
}

std::string lowered(std::string_view name) {
    std::string lower(name);
    for (char& c : lower) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return lower;
}

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

std::string nameToCreate(std::string_view written) {
    return isUtf8(written) ? std::string(written) : utf8From1252(written);
}

std::unique_ptr<DirectoryListing> DirectoryListing::read(std::string path) {
    const int descriptor = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return nullptr;
    std::unique_ptr<DirectoryListing> listing(new DirectoryListing(std::move(path), descriptor));
    return listing->list() ? std::move(listing) : nullptr;
}

DirectoryListing::~DirectoryListing() {
    close(descriptor_);
}

bool DirectoryListing::isCurrent() const {
    struct stat found = {};
    return stat(path_.c_str(), &found) == 0 && isSameState(found, identity_);
}

bool DirectoryListing::list() {
    spellings_.clear();
    // The state is taken before the names: a change in between makes the listing outdated, never wrongly current.
    const timespec listed = now(CLOCK_REALTIME);
    if (fstat(descriptor_, &identity_) != 0) return false;
    settled_ = isSettled(identity_, listed);
    // A stream of its own for the reading: its buffer is larger than all that is kept.
    const int copy = fcntl(descriptor_, F_DUPFD_CLOEXEC, 0);
    DIR* stream = fdopendir(copy);
    if (stream == nullptr) {
        close(copy);
        settled_ = false;
        return false;
    }
    rewinddir(stream);
    while (const dirent* entry = readdir(stream)) {
        std::vector<std::string>& names = spellings_[lowered(entry->d_name)];
        names.insert(std::upper_bound(names.begin(), names.end(), entry->d_name), entry->d_name);
    }
    closedir(stream);
    return true;
}

bool DirectoryListing::holds(const std::string& name) const {
    struct stat found = {};
    return fstatat(descriptor_, name.c_str(), &found, AT_SYMLINK_NOFOLLOW) == 0;
}

const std::string* DirectoryListing::listedSpelling(std::string_view name) const {
    const auto found = spellings_.find(lowered(name));
    if (found == spellings_.end()) return nullptr;
    const auto exact = std::find(found->second.begin(), found->second.end(), name);
    return exact != found->second.end() ? &*exact : &found->second.front();
}

std::string DirectoryListing::spellSettled(std::string_view written) const {
    const std::string* name = listedSpelling(written);
    if (isAscii(written)) return name != nullptr ? *name : std::string(written);
    if (name != nullptr && *name == written) return *name;
    const std::string utf8 = utf8From1252(written);
    const std::string* utf8Name = listedSpelling(utf8);
    if (utf8Name != nullptr && *utf8Name == utf8) return *utf8Name;
    if (name == nullptr) name = utf8Name;
    return name != nullptr ? *name : nameToCreate(written);
}

std::string DirectoryListing::spell(std::string_view written) {
    if (!settled_ && isSettled(identity_, now(CLOCK_REALTIME))) list();
    if (settled_) return spellSettled(written);
    // What the listing says may be wrong by a change or two: each answer is checked against the directory itself.
    if (holds(std::string(written))) return std::string(written);
    if (!isAscii(written) && holds(utf8From1252(written))) return utf8From1252(written);
    std::string name = spellSettled(written);
    if (name != written && holds(name)) return name;
    list();
    return spellSettled(written);
}

bool DirectoryListing::isMountedForWriting() {
    const std::int64_t second = now(CLOCK_MONOTONIC_COARSE).tv_sec;
    if (second != mountAskedSecond_) {
        struct statvfs mount = {};
        mountedForWriting_ = fstatvfs(descriptor_, &mount) == 0 && (mount.f_flag & ST_RDONLY) == 0;
        mountAskedSecond_ = second;
    }
    return mountedForWriting_;
}
