#include "platform/file_tree.h"

#include <fcntl.h>
#include <io.h>

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/files.h"
#include "platform/win32.h"
#include "platform/windows/file_held.h"

namespace {

constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD keptAttributes = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;

std::wstring wide(const std::string& text, UINT codePage) {
    const int size = MultiByteToWideChar(codePage, 0, text.c_str(), static_cast<int>(text.size()), nullptr, 0);
    std::wstring converted(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(codePage, 0, text.c_str(), static_cast<int>(text.size()), converted.data(), size);
    return converted;
}

std::string narrow(const std::wstring& text, UINT codePage) {
    const int length = static_cast<int>(text.size());
    const int size = WideCharToMultiByte(codePage, 0, text.c_str(), length, nullptr, 0, nullptr, nullptr);
    std::string converted(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(codePage, 0, text.c_str(), length, converted.data(), size, nullptr, nullptr);
    return converted;
}

// Absolute, in the form that may be of any length.
std::wstring longForm(const std::string& path) {
    const std::wstring given = wide(path, CP_ACP);
    const DWORD size = GetFullPathNameW(given.c_str(), 0, nullptr, nullptr);
    std::wstring full(size, L'\0');
    full.resize(GetFullPathNameW(given.c_str(), size, full.data(), nullptr));
    while (!full.empty() && full.back() == L'\\') {
        full.pop_back();
    }
    if (full.starts_with(L"\\\\")) return L"\\\\?\\UNC" + full.substr(1);
    return L"\\\\?\\" + full;
}

std::string_view parentOf(std::string_view path) {
    const std::size_t slash = path.rfind('/');
    return path.substr(0, slash == std::string_view::npos ? 0 : slash);
}

std::int64_t joined(DWORD high, DWORD low) {
    return static_cast<std::int64_t>(high) << 32 | low;
}

template <typename Found>
FileStamp stampFrom(const Found& found) {
    return {joined(found.nFileSizeHigh, found.nFileSizeLow),
            joined(found.ftLastWriteTime.dwHighDateTime, found.ftLastWriteTime.dwLowDateTime),
            found.dwFileAttributes & keptAttributes};
}

FILETIME timeOf(const FileStamp& stamp) {
    return {static_cast<DWORD>(stamp.time), static_cast<DWORD>(stamp.time >> 32)};
}

bool isDirectory(DWORD attributes) {
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// What a link leads to.
bool queryTarget(const std::wstring& path, BY_HANDLE_FILE_INFORMATION& found) {
    HANDLE const opened =
        CreateFileW(path.c_str(), 0, shareAll, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (opened == INVALID_HANDLE_VALUE) return false;
    const bool isKnown = GetFileInformationByHandle(opened, &found) != FALSE;
    CloseHandle(opened);
    return isKnown;
}

template <typename Attempt>
bool whileHeld(const std::wstring& path, Attempt attempt) {
    constexpr DWORD twoSeconds = 2000;
    const DWORD begin = GetTickCount();
    bool isDone = attempt();
    while (!isDone && GetTickCount() - begin < twoSeconds) {
        const DWORD error = GetLastError();
        const DWORD attributes = GetFileAttributesW(path.c_str());
        SetLastError(error);
        const bool isFile = attributes != INVALID_FILE_ATTRIBUTES && !isDirectory(attributes);
        if (error != ERROR_SHARING_VIOLATION && (error != ERROR_ACCESS_DENIED || !isFile)) break;
        Sleep(20);
        isDone = attempt();
    }
    return isDone;
}

std::FILE* streamOf(HANDLE file, int flags, const char* mode) {
    if (file == INVALID_HANDLE_VALUE) return nullptr;
    const int descriptor = _open_osfhandle(reinterpret_cast<intptr_t>(file), _O_BINARY | flags);
    if (descriptor < 0) {
        CloseHandle(file);
        SetLastError(ERROR_TOO_MANY_OPEN_FILES);
        return nullptr;
    }
    std::FILE* const stream = _fdopen(descriptor, mode);
    if (stream != nullptr) {
        std::setvbuf(stream, nullptr, _IONBF, 0);
    } else {
        _close(descriptor);
        SetLastError(ERROR_TOO_MANY_OPEN_FILES);
    }
    return stream;
}

}  // namespace

struct FileTree::State {
    // Empty, with the last error set, if the way there leads through a link that isn't followed.
    std::wstring full(const std::string& path) {
        if (!follows && !isPlainDirectory(parentOf(path))) return {};
        return joinedTo(path);
    }

    std::wstring joinedTo(std::string_view path) const {
        if (path.empty()) return root;
        std::wstring below = wide(std::string(path), CP_UTF8);
        std::ranges::replace(below, L'/', L'\\');
        return root + L'\\' + below;
    }

    bool isPlainDirectory(std::string_view path) {
        if (path.empty() || path == plain) return true;
        if (!isPlainDirectory(parentOf(path))) return false;
        const DWORD attributes = GetFileAttributesW(joinedTo(path).c_str());
        if (attributes == INVALID_FILE_ATTRIBUTES) return false;
        if (isDirectory(attributes) && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
            plain = path;
            return true;
        }
        SetLastError(ERROR_PATH_NOT_FOUND);
        return false;
    }

    std::wstring root;
    bool follows;
    std::string plain;  // the last directory that was found to be no link
};

FileTree::FileTree(const std::string& root, Links links)
    : state_(std::make_unique<State>(State{longForm(root), links == Links::followed, {}})) {}

FileTree::~FileTree() = default;

namespace {

void describe(const std::wstring& directory, bool follows, const WIN32_FIND_DATAW& found, TreeEntry& entry) {
    entry.name = narrow(found.cFileName, CP_UTF8);
    entry.isLink = (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    entry.kind = isDirectory(found.dwFileAttributes) ? TreeEntry::Kind::directory : TreeEntry::Kind::file;
    if (!entry.isLink) {
        if (entry.kind == TreeEntry::Kind::file) entry.stamp = stampFrom(found);
        return;
    }
    BY_HANDLE_FILE_INFORMATION target = {};
    if (!follows || !queryTarget(directory + L'\\' + found.cFileName, target)) {
        entry.kind = TreeEntry::Kind::other;
    } else if (entry.kind == TreeEntry::Kind::file) {
        entry.stamp = stampFrom(target);
    }
}

}  // namespace

std::optional<std::vector<TreeEntry>> FileTree::entriesOf(const std::string& directory) const {
    if (!state_->follows && !state_->isPlainDirectory(directory)) return std::nullopt;
    const std::wstring path = state_->joinedTo(directory);
    WIN32_FIND_DATAW found = {};
    HANDLE const search = FindFirstFileW((path + L"\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return std::nullopt;
    std::vector<TreeEntry> entries;
    do {
        const std::wstring_view name = found.cFileName;
        if (name == L"." || name == L"..") continue;
        describe(path, state_->follows, found, entries.emplace_back());
    } while (FindNextFileW(search, &found));
    const DWORD error = GetLastError();
    FindClose(search);
    SetLastError(error);
    if (error != ERROR_NO_MORE_FILES) return std::nullopt;
    std::ranges::sort(entries, {}, &TreeEntry::name);
    return entries;
}

std::optional<FileStamp> FileTree::stampOf(const std::string& file) const {
    const std::wstring path = state_->full(file);
    WIN32_FILE_ATTRIBUTE_DATA found = {};
    if (path.empty() || GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &found) == FALSE) return std::nullopt;
    const bool isLink = (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    if (isDirectory(found.dwFileAttributes) || (isLink && !state_->follows)) {
        SetLastError(ERROR_ACCESS_DENIED);
        return std::nullopt;
    }
    BY_HANDLE_FILE_INFORMATION target = {};
    if (!isLink) return stampFrom(found);
    if (!queryTarget(path, target)) return std::nullopt;
    return stampFrom(target);
}

namespace {

// By FNV-1a, whose bits are enough for no two names of one game to meet.
std::uint64_t numberOfName(std::wstring path) {
    CharLowerBuffW(path.data(), static_cast<DWORD>(path.size()));
    std::uint64_t number = 0xCBF29CE484222325;
    for (const wchar_t letter : path) {
        number = (number ^ letter) * 0x100000001B3;
    }
    return number;
}

}  // namespace

std::optional<FileId> FileTree::idOf(const std::string& path) const {
    const std::wstring full = state_->full(path);
    BY_HANDLE_FILE_INFORMATION found = {};
    if (full.empty() || !queryTarget(full, found)) return std::nullopt;
    const auto number = static_cast<std::uint64_t>(joined(found.nFileIndexHigh, found.nFileIndexLow));
    return FileId{found.dwVolumeSerialNumber, number != 0 ? number : numberOfName(full)};
}

bool FileTree::hasSameBytes(const std::string& file, const FileTree& tree, const std::string& other) const {
    std::FILE* const one = openToRead(file);
    std::FILE* const two = tree.openToRead(other);
    bool isSame = one != nullptr && two != nullptr;
    static std::array<char, 64'000> oneBlock, otherBlock;
    for (std::size_t got = 1; isSame && got > 0;) {
        got = std::fread(oneBlock.data(), 1, oneBlock.size(), one);
        isSame = std::fread(otherBlock.data(), 1, otherBlock.size(), two) == got &&
                 std::equal(oneBlock.begin(), oneBlock.begin() + static_cast<std::ptrdiff_t>(got), otherBlock.begin());
    }
    isSame = isSame && std::ferror(one) == 0 && std::ferror(two) == 0;
    if (one != nullptr) std::fclose(one);
    if (two != nullptr) std::fclose(two);
    return isSame;
}

std::FILE* FileTree::openToRead(const std::string& file) const {
    if (!state_->follows && !stampOf(file)) return nullptr;
    const std::wstring path = state_->full(file);
    HANDLE opened = INVALID_HANDLE_VALUE;
    whileHeld(path, [&] {
        opened = CreateFileW(path.c_str(), GENERIC_READ, shareAll, nullptr, OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN,
                             nullptr);
        return opened != INVALID_HANDLE_VALUE;
    });
    return streamOf(opened, _O_RDONLY, "rb");
}

std::FILE* FileTree::create(const std::string& file) const {
    const std::wstring path = state_->full(file);
    if (path.empty()) return nullptr;
    constexpr DWORD shareNothing = 0;
    return streamOf(
        CreateFileW(path.c_str(), GENERIC_WRITE, shareNothing, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr), 0,
        "wb");
}

// Windows has no call that syncs many files.
bool FileTree::finish(std::FILE* stream, const std::string& file, const FileStamp& stamp, Sync) const {
    const bool isOnDisk = syncFile(stream);
    const bool isClosed = std::fclose(stream) == 0;
    return isOnDisk && isClosed && setTimeAndMode(file, stamp);
}

bool FileTree::setTimeAndMode(const std::string& file, const FileStamp& stamp) const {
    const std::wstring path = state_->full(file);
    if (path.empty()) return false;
    HANDLE opened = INVALID_HANDLE_VALUE;
    whileHeld(path, [&] {
        opened = CreateFileW(path.c_str(), FILE_WRITE_ATTRIBUTES, shareAll, nullptr, OPEN_EXISTING, 0, nullptr);
        return opened != INVALID_HANDLE_VALUE;
    });
    if (opened == INVALID_HANDLE_VALUE) return false;
    const FILETIME time = timeOf(stamp);
    const bool isSet = SetFileTime(opened, nullptr, nullptr, &time) != FALSE;
    CloseHandle(opened);
    const DWORD attributes = stamp.mode != 0 ? stamp.mode : FILE_ATTRIBUTE_NORMAL;
    return isSet && SetFileAttributesW(path.c_str(), attributes) != FALSE;
}

bool FileTree::link(const std::string& file, const std::string& name) const {
    const std::wstring from = state_->full(file), to = state_->full(name);
    return !from.empty() && !to.empty() && CreateHardLinkW(to.c_str(), from.c_str(), nullptr) != FALSE;
}

namespace {

// Windows neither replaces nor deletes a write-protected file.
void makeWritable(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_READONLY) == 0) return;
    SetFileAttributesW(path.c_str(), attributes & keptAttributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY));
}

}  // namespace

bool FileTree::replace(const std::string& from, const std::string& to) const {
    constexpr DWORD durably = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    const std::wstring source = state_->full(from), target = state_->full(to);
    if (source.empty() || target.empty()) return false;
    makeWritable(target);
    return whileHeld(source, [&] { return MoveFileExW(source.c_str(), target.c_str(), durably) != FALSE; });
}

bool FileTree::renameDirectory(const std::string& from, const std::string& to) const {
    const std::wstring source = state_->full(from), target = state_->full(to);
    state_->plain.clear();
    return !source.empty() && !target.empty() &&
           MoveFileExW(source.c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH) != FALSE;
}

bool FileTree::makeDirectories(const std::string& directory) const {
    if (directory.empty()) return true;
    const std::wstring path = state_->joinedTo(directory);
    const DWORD attributes = GetFileAttributesW(path.c_str());
    const bool isThere = attributes != INVALID_FILE_ATTRIBUTES && isDirectory(attributes);
    if (isThere) return state_->follows || state_->isPlainDirectory(directory);
    return makeDirectories(std::string(parentOf(directory))) && CreateDirectoryW(path.c_str(), nullptr) != FALSE;
}

bool FileTree::removeFile(const std::string& file) const {
    const std::wstring path = state_->full(file);
    if (path.empty()) return false;
    makeWritable(path);
    return whileHeld(path, [&] { return DeleteFileW(path.c_str()) != FALSE; });
}

bool FileTree::removeDirectory(const std::string& directory) const {
    const std::wstring path = state_->full(directory);
    state_->plain.clear();
    return !path.empty() && RemoveDirectoryW(path.c_str()) != FALSE;
}

// The rights to a directory may not suffice for this, and not every file system can do it.
bool FileTree::sync(const std::string& directory) const {
    const std::wstring path = state_->full(directory);
    if (path.empty()) return false;
    HANDLE const opened =
        CreateFileW(path.c_str(), GENERIC_WRITE, shareAll, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (opened == INVALID_HANDLE_VALUE) return true;
    const bool isSynced = FlushFileBuffers(opened) != FALSE;
    const DWORD error = GetLastError();
    CloseHandle(opened);
    return isSynced || (error != ERROR_CRC && error != ERROR_IO_DEVICE && error != ERROR_WRITE_FAULT);
}

bool FileTree::syncAll(const std::string&) const {
    return true;
}

// A colon would lead to another stream of a file.
bool FileTree::isName(std::string_view name) {
    constexpr std::string_view excluded("/\\:*?\"<>|\0", 10);
    return !name.empty() && name != "." && name != ".." && name.find_first_of(excluded) == std::string_view::npos;
}

std::string FileTree::shown(const std::string& path) {
    return narrow(wide(path, CP_UTF8), CP_ACP);
}
