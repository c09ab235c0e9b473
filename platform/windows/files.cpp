#include "platform/files.h"

#include <io.h>

#include <algorithm>

#include "platform/path_text.h"
#include "platform/win32.h"
#include "platform/windows/file_held.h"

namespace {

// Windows counts steps of 100 ns since 1601.
std::int64_t secondsOf(const FILETIME& time) {
    constexpr std::int64_t stepsPerSecond = 10'000'000;
    constexpr std::int64_t from1601To1970 = 11'644'473'600;
    const std::int64_t steps = static_cast<std::int64_t>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
    return steps / stepsPerSecond - from1601To1970;
}

}  // namespace

// Windows reports a file that is open elsewhere as "access denied", too, if it is to be replaced, or was deleted while
// it was open. A file whose access rights exclude the user looks the same, and is waited for in vain.
bool isHeldByAnother(const char* path) {
    const DWORD error = GetLastError();
    if (error != ERROR_ACCESS_DENIED) return error == ERROR_SHARING_VIOLATION;
    const DWORD attributes = GetFileAttributesA(path);
    const bool isDeleted = attributes == INVALID_FILE_ATTRIBUTES && GetLastError() == ERROR_ACCESS_DENIED;
    SetLastError(error);
    if (attributes == INVALID_FILE_ATTRIBUTES) return isDeleted;
    return (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) == 0;
}

std::FILE* openFile(const char* path, const char* mode) {
    // The runtime refuses some arguments itself, without setting the last error.
    SetLastError(ERROR_INVALID_PARAMETER);
    std::FILE* file = std::fopen(path, mode);
    if (file != nullptr) std::setvbuf(file, nullptr, _IONBF, 0);
    return file;
}

std::FILE* openWhenFree(const char* path, const char* mode) {
    return whileHeld(path, [=] { return openFile(path, mode); });
}

bool deleteWhenFree(const char* path) {
    return whileHeld(path, [=] { return DeleteFileA(path) != FALSE; });
}

// The runtime's own query reports the same modes, but sets an extra bit for programs and also asks for three times.
bool queryFileStatus(const char* path, FileStatus& status) {
    WIN32_FILE_ATTRIBUTE_DATA found = {};
    if (GetFileAttributesExA(path, GetFileExInfoStandard, &found) == FALSE) return false;
    const bool writable = (found.dwFileAttributes & FILE_ATTRIBUTE_READONLY) == 0;
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        status = {writable ? writableDirectoryMode : readOnlyDirectoryMode, 0, secondsOf(found.ftLastWriteTime)};
        return true;
    }
    status.mode = writable ? writableFileMode : readOnlyFileMode;
    status.size = static_cast<std::int64_t>(found.nFileSizeHigh) << 32 | found.nFileSizeLow;
    status.written = secondsOf(found.ftLastWriteTime);
    return true;
}

std::int64_t freeRoomIn(const char* directory) {
    ULARGE_INTEGER room = {};
    if (GetDiskFreeSpaceExA(directory, &room, nullptr, nullptr) == FALSE) return -1;
    return static_cast<std::int64_t>(room.QuadPart);
}

std::vector<std::string> fileNamesIn(const char* directory) {
    std::vector<std::string> names;
    WIN32_FIND_DATAA found{};
    const HANDLE search = FindFirstFileA((std::string(directory) + "\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) names.emplace_back(found.cFileName);
    } while (FindNextFileA(search, &found));
    FindClose(search);
    std::ranges::sort(names);
    return names;
}

bool isSameFile(const char* first, const char* second) {
    BY_HANDLE_FILE_INFORMATION one = {}, other = {};
    const auto query = [](const char* path, BY_HANDLE_FILE_INFORMATION& file) {
        constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
        HANDLE const opened =
            CreateFileA(path, 0, shareAll, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
        if (opened == INVALID_HANDLE_VALUE) return false;
        const bool isKnown = GetFileInformationByHandle(opened, &file) != FALSE;
        CloseHandle(opened);
        return isKnown;
    };
    const bool isSame = query(first, one) && query(second, other) &&
                        one.dwVolumeSerialNumber == other.dwVolumeSerialNumber &&
                        one.nFileIndexHigh == other.nFileIndexHigh && one.nFileIndexLow == other.nFileIndexLow;
    // Some network drives don't number their files: there all have the number 0.
    const bool isNumbered = one.nFileIndexHigh != 0 || one.nFileIndexLow != 0;
    const auto folded = [](const char* path) {
        std::string whole = absolutePath(path);
        CharLowerBuffA(whole.data(), static_cast<DWORD>(whole.size()));
        return whole;
    };
    return isSame && (isNumbered || folded(first) == folded(second));
}

// Windows ignores case itself, so nothing needs to be kept.
SteadyDirectories::SteadyDirectories() = default;
SteadyDirectories::~SteadyDirectories() = default;

// The rights to a directory may not suffice for this, and not every file system can do it.
bool syncDirectory(const char* path) {
    constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    HANDLE const directory =
        CreateFileA(path, GENERIC_WRITE, shareAll, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (directory == INVALID_HANDLE_VALUE) return true;
    const bool isSynced = FlushFileBuffers(directory) != FALSE;
    const DWORD error = GetLastError();
    CloseHandle(directory);
    return isSynced || (error != ERROR_CRC && error != ERROR_IO_DEVICE && error != ERROR_WRITE_FAULT);
}

bool syncFile(std::FILE* file) {
    return std::fflush(file) == 0 && _commit(_fileno(file)) == 0;
}
