#include "platform/file_tree.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>
#include <utility>

#include "platform/native/api/system.h"
#include "platform/native/base/last_error.h"
#include "platform/native/base/text1252.h"
#include "platform/native/files/file_stream.h"
#include "platform/native/files/paths.h"

namespace {

constexpr mode_t permissions = 07777;
constexpr std::int64_t nanoseconds = 1'000'000'000;

bool done(int result) {
    if (result != 0) SetLastError(windowsError(errno));
    return result == 0;
}

std::string_view parentOf(std::string_view path) {
    const std::size_t slash = path.rfind('/');
    return path.substr(0, slash == std::string_view::npos ? 0 : slash);
}

std::string nameIn(std::string_view path) {
    return std::string(path.substr(path.rfind('/') + 1));
}

FileStamp stampFrom(const struct stat& status) {
    return {status.st_size, status.st_mtim.tv_sec * nanoseconds + status.st_mtim.tv_nsec, status.st_mode & permissions};
}

// Of the last access, which stays, and of the last write.
std::array<timespec, 2> timesOf(const FileStamp& stamp) {
    std::int64_t seconds = stamp.time / nanoseconds, rest = stamp.time % nanoseconds;
    if (rest < 0) {
        --seconds;
        rest += nanoseconds;
    }
    return {timespec{0, UTIME_OMIT}, timespec{seconds, rest}};
}

bool isLink(int directory, const dirent& entry) {
    if (entry.d_type != DT_UNKNOWN) return entry.d_type == DT_LNK;
    struct stat status = {};
    return fstatat(directory, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISLNK(status.st_mode);
}

// False if the kind of the entry can't be determined. A link that leads nowhere, or in a circle, is known.
bool describe(int directory, int noFollow, TreeEntry& entry) {
    struct stat status = {};
    if (fstatat(directory, entry.name.c_str(), &status, noFollow) != 0) {
        return errno == ENOENT || errno == ELOOP || done(-1);
    }
    if (S_ISDIR(status.st_mode)) entry.kind = TreeEntry::Kind::directory;
    if (!S_ISREG(status.st_mode)) return true;
    entry.kind = TreeEntry::Kind::file;
    entry.stamp = stampFrom(status);
    return true;
}

}  // namespace

// Operations on a file go by its open directory. The last two are kept: most files have many neighbors, and a link has
// two directories.
struct FileTree::State {
    State(const std::string& rootPath, bool follow)
        : follows(follow), root(open(rootPath.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}
    ~State() {
        forget();
        if (root >= 0) close(root);
    }

    // -1, with `errno` set, if there is none.
    int directory(std::string_view path) {
        if (path.empty()) return root;
        for (const Kept& one : kept) {
            if (one.descriptor >= 0 && one.path == path) return one.descriptor;
        }
        oldest = 1 - oldest;
        Kept& next = kept[oldest];
        if (next.descriptor >= 0) close(next.descriptor);
        next = {std::string(path), opened(path)};
        return next.descriptor;
    }

    // Asked when a directory's path may mean another one from then on.
    void forget() {
        for (Kept& one : kept) {
            if (one.descriptor >= 0) close(std::exchange(one.descriptor, -1));
        }
    }

    int opened(std::string_view path) const {
        constexpr int always = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
        if (follows) return openat(root, std::string(path).c_str(), always);
        int current = root;
        while (!path.empty()) {
            const std::size_t end = std::min(path.find('/'), path.size());
            const int next = openat(current, std::string(path.substr(0, end)).c_str(), always | O_NOFOLLOW);
            const int error = errno;
            if (current != root) close(current);
            errno = error;
            if (next < 0) return next;
            current = next;
            path.remove_prefix(std::min(end + 1, path.size()));
        }
        return current;
    }

    // To be read. -1, with `errno` set, on failure.
    int openFile(const std::string& path) {
        const int in = directory(parentOf(path));
        const int flags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | (follows ? 0 : O_NOFOLLOW);
        return in < 0 ? in : openat(in, nameIn(path).c_str(), flags);
    }

    int noFollow() const { return follows ? 0 : AT_SYMLINK_NOFOLLOW; }

    bool query(const std::string& path, struct stat& status) {
        if (path.empty()) return done(fstat(root, &status));
        const int in = directory(parentOf(path));
        return done(in < 0 ? in : fstatat(in, nameIn(path).c_str(), &status, noFollow()));
    }

    struct Kept {
        std::string path;
        int descriptor = -1;
    };

    bool follows;
    int root;
    std::array<Kept, 2> kept;
    std::size_t oldest = 0;
};

FileTree::FileTree(const std::string& root, Links links)
    : state_(std::make_unique<State>(nativePath(root.c_str()), links == Links::followed)) {}

FileTree::~FileTree() = default;

std::optional<std::vector<TreeEntry>> FileTree::entriesOf(const std::string& directory) const {
    const int in = state_->directory(directory);
    // Opened once more, because closing the stream closes its descriptor.
    const int listed = in < 0 ? in : openat(in, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    DIR* const stream = listed < 0 ? nullptr : fdopendir(listed);
    if (stream == nullptr) {
        done(-1);
        if (listed >= 0) close(listed);
        return std::nullopt;
    }
    std::vector<TreeEntry> entries;
    errno = 0;
    while (const dirent* entry = readdir(stream)) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") {
            entries.push_back({std::string(name), TreeEntry::Kind::other, isLink(listed, *entry), {}});
        }
        errno = 0;
    }
    bool isWhole = done(errno == 0 ? 0 : -1);
    for (TreeEntry& entry : entries) {
        isWhole = describe(listed, state_->noFollow(), entry) && isWhole;
    }
    closedir(stream);
    if (!isWhole) return std::nullopt;
    std::ranges::sort(entries, {}, &TreeEntry::name);
    return entries;
}

std::optional<FileStamp> FileTree::stampOf(const std::string& file) const {
    struct stat status = {};
    if (!state_->query(file, status)) return std::nullopt;
    if (S_ISREG(status.st_mode)) return stampFrom(status);
    SetLastError(ERROR_ACCESS_DENIED);
    return std::nullopt;
}

std::optional<FileId> FileTree::idOf(const std::string& path) const {
    struct stat status = {};
    if (!state_->query(path, status)) return std::nullopt;
    return FileId{status.st_dev, status.st_ino};
}

// By the calls alone: most files are compared, and a stream takes longer to make than a small file to read.
bool FileTree::hasSameBytes(const std::string& file, const FileTree& tree, const std::string& other) const {
    const int one = state_->openFile(file), two = one < 0 ? one : tree.state_->openFile(other);
    bool isSame = two >= 0 || done(two);
    static std::array<char, 256'000> oneBlock, otherBlock;
    for (ssize_t got = 1; isSame && got > 0;) {
        got = read(one, oneBlock.data(), oneBlock.size());
        isSame = got >= 0 && read(two, otherBlock.data(), otherBlock.size()) == got &&
                 std::equal(oneBlock.begin(), oneBlock.begin() + got, otherBlock.begin());
    }
    if (one >= 0) close(one);
    if (two >= 0) close(two);
    return isSame;
}

std::FILE* FileTree::openToRead(const std::string& file) const {
    const int in = state_->directory(parentOf(file));
    const int noFollow = state_->follows ? 0 : O_NOFOLLOW;
    if (in >= 0) return openStream({in, nameIn(file), false}, O_RDONLY | noFollow, "rb");
    done(in);
    return nullptr;
}

std::FILE* FileTree::create(const std::string& file) const {
    const int in = state_->directory(parentOf(file));
    if (in >= 0) return openStream({in, nameIn(file), false}, O_WRONLY | O_CREAT | O_EXCL, "wb");
    done(in);
    return nullptr;
}

bool FileTree::finish(std::FILE* stream, const std::string&, const FileStamp& stamp, Sync sync) const {
    const int file = fileno(stream);
    const auto times = timesOf(stamp);
    bool isWhole = std::fflush(stream) == 0 && done(fchmod(file, stamp.mode)) && done(futimens(file, times.data()));
    if (sync == Sync::now) isWhole = isWhole && (syncToDisk(file) || done(-1));
    return std::fclose(stream) == 0 && isWhole;
}

bool FileTree::setTimeAndMode(const std::string& file, const FileStamp& stamp) const {
    const int in = state_->directory(parentOf(file));
    const auto times = timesOf(stamp);
    const std::string name = nameIn(file);
    return done(in < 0 ? in : fchmodat(in, name.c_str(), stamp.mode, 0)) &&
           done(utimensat(in, name.c_str(), times.data(), state_->noFollow()));
}

bool FileTree::link(const std::string& file, const std::string& name) const {
    const int from = state_->directory(parentOf(file));
    const int to = from < 0 ? from : state_->directory(parentOf(name));
    return done(to < 0 ? to : linkat(from, nameIn(file).c_str(), to, nameIn(name).c_str(), 0));
}

bool FileTree::replace(const std::string& from, const std::string& to) const {
    const int source = state_->directory(parentOf(from));
    const int target = source < 0 ? source : state_->directory(parentOf(to));
    if (target < 0) return done(target);
    struct stat older = {}, newer = {};
    const std::string newName = nameIn(from), name = nameIn(to);
    const bool isThere = fstatat(target, name.c_str(), &older, 0) == 0;
    const bool isKnown = fstatat(source, newName.c_str(), &newer, AT_SYMLINK_NOFOLLOW) == 0;
    const bool hasGroup = !isThere || !isKnown || older.st_gid == newer.st_gid ||
                          fchownat(source, newName.c_str(), static_cast<uid_t>(-1), older.st_gid, 0) != 0;
    // A new group takes some bits of the mode away.
    if (!hasGroup && fchmodat(source, newName.c_str(), newer.st_mode & permissions, 0) != 0) return done(-1);
    return done(renameat(source, newName.c_str(), target, name.c_str()));
}

bool FileTree::renameDirectory(const std::string& from, const std::string& to) const {
    const int source = state_->directory(parentOf(from));
    const int target = source < 0 ? source : state_->directory(parentOf(to));
    if (target < 0) return done(target);
    const int result = renameat2(source, nameIn(from).c_str(), target, nameIn(to).c_str(), RENAME_NOREPLACE);
    struct stat status = {};
    // Some file systems can't exclude that itself.
    const bool isUnknown = result != 0 && (errno == EINVAL || errno == ENOSYS);
    if (!isUnknown || fstatat(target, nameIn(to).c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0) {
        state_->forget();
        return done(result);
    }
    state_->forget();
    return done(renameat(source, nameIn(from).c_str(), target, nameIn(to).c_str()));
}

bool FileTree::makeDirectories(const std::string& directory) const {
    if (state_->directory(directory) >= 0) return true;
    if (errno != ENOENT || directory.empty()) return done(-1);
    const std::string parent(parentOf(directory));
    if (!makeDirectories(parent)) return false;
    constexpr mode_t everybodyButUmask = 0777;
    const int in = state_->directory(parent);
    return done(in < 0 ? in : mkdirat(in, nameIn(directory).c_str(), everybodyButUmask));
}

bool FileTree::removeFile(const std::string& file) const {
    const int in = state_->directory(parentOf(file));
    return done(in < 0 ? in : unlinkat(in, nameIn(file).c_str(), 0));
}

bool FileTree::removeDirectory(const std::string& directory) const {
    state_->forget();
    const int in = state_->directory(parentOf(directory));
    return done(in < 0 ? in : unlinkat(in, nameIn(directory).c_str(), AT_REMOVEDIR));
}

bool FileTree::sync(const std::string& directory) const {
    const int in = state_->directory(directory);
    return (in >= 0 && syncToDisk(in)) || done(-1);
}

// One call for all files: each alone would wait for the disk.
bool FileTree::syncAll(const std::string& directory) const {
    const int in = state_->directory(directory);
    return done(in < 0 ? in : syncfs(in));
}

bool FileTree::isName(std::string_view name) {
    return !name.empty() && name != "." && name != ".." && name.find_first_of({"/\0", 2}) == std::string_view::npos;
}

std::string FileTree::shown(const std::string& path) {
    return text1252FromUtf8(path);
}
