#include "platform/native/api/file_system.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>
#include <string>
#include <vector>

#include "platform/native/api/system.h"
#include "platform/native/base/last_error.h"
#include "platform/native/base/text1252.h"
#include "platform/native/files/path_status.h"
#include "platform/native/files/paths.h"

namespace {

// Searches that FindClose has not closed yet. Each handle is a new number, so that a closed one is recognized.
std::vector<HANDLE> openSearches;
ULONG_PTR lastSearch = 0;

BOOL fail(DWORD code) {
    SetLastError(code);
    return FALSE;
}

BOOL done(int result, const NativePath& path) {
    if (result == 0) return TRUE;
    setPathError(errno, path);
    return FALSE;
}

DWORD attributesOf(const NativePath& path, const struct stat& status) {
    DWORD attributes = S_ISDIR(status.st_mode) ? FILE_ATTRIBUTE_DIRECTORY : 0;
    if (!mayWrite(path, status)) attributes |= FILE_ATTRIBUTE_READONLY;
    return attributes != 0 ? attributes : FILE_ATTRIBUTE_NORMAL;
}

void describe(const NativePath& path, const struct stat& status, WIN32_FIND_DATAA& found) {
    const auto size = S_ISDIR(status.st_mode) ? 0 : static_cast<std::uint64_t>(status.st_size);
    const std::string name = text1252FromUtf8(std::string_view(path.name).substr(path.name.rfind('/') + 1));
    found = {};
    found.dwFileAttributes = attributesOf(path, status);
    found.nFileSizeHigh = static_cast<DWORD>(size >> 32);
    found.nFileSizeLow = static_cast<DWORD>(size);
    name.copy(found.cFileName, sizeof found.cFileName - 1);
}

}  // namespace

HANDLE FindFirstFileA(LPCSTR fileName, WIN32_FIND_DATAA* found) {
    if (std::strpbrk(fileName, "*?") != nullptr) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return INVALID_HANDLE_VALUE;
    }
    const NativePath path = locate(fileName);
    struct stat status = {};
    const bool named = !path.name.empty() && path.name.back() != '/';
    const int result = named ? fstatat(path.directory, path.name.c_str(), &status, 0) : -1;
    if (result != 0) {
        setPathError(named ? errno : ENOENT, path);
        return INVALID_HANDLE_VALUE;
    }
    describe(path, status, *found);
    openSearches.push_back(reinterpret_cast<HANDLE>(++lastSearch));  // NOLINT(performance-no-int-to-ptr): a number
    return openSearches.back();
}

BOOL FindClose(HANDLE search) {
    const auto open = std::find(openSearches.begin(), openSearches.end(), search);
    if (open == openSearches.end()) return fail(ERROR_INVALID_HANDLE);
    openSearches.erase(open);
    return TRUE;
}

BOOL CreateDirectoryA(LPCSTR path, SECURITY_ATTRIBUTES*) {
    constexpr mode_t everybodyButUmask = 0777;
    const NativePath directory = locate(path);
    const int result = mkdirat(directory.directory, directory.name.c_str(), everybodyButUmask);
    // ENOENT means that something on the way to the new directory is missing.
    if (result != 0 && errno == ENOENT) return fail(ERROR_PATH_NOT_FOUND);
    return done(result, directory);
}

BOOL SetCurrentDirectoryA(LPCSTR path) {
    const NativePath directory = {AT_FDCWD, nativePath(path), false};
    return done(chdir(directory.name.c_str()), directory);
}

DWORD GetCurrentDirectoryA(DWORD size, LPSTR path) {
    char directory[PATH_MAX];
    if (getcwd(directory, sizeof directory) == nullptr) {
        SetLastError(windowsError(errno));
        return 0;
    }
    // Not if a character is outside the code page, or if the way to the directory can't be listed.
    std::string text = text1252FromUtf8(directory);
    if (nativePath(text.c_str()) != directory) text = directory;
    const auto length = static_cast<DWORD>(text.size());
    if (length >= size) return length + 1;
    std::memcpy(path, text.c_str(), length + 1);
    return length;
}

BOOL DeleteFileA(LPCSTR path) {
    const NativePath file = locate(path);
    struct stat status = {};
    const bool known = fstatat(file.directory, file.name.c_str(), &status, 0) == 0;
    if (known && (S_ISDIR(status.st_mode) || isWriteProtected(status))) return fail(ERROR_ACCESS_DENIED);
    return done(unlinkat(file.directory, file.name.c_str(), 0), file);
}
