#include "platform/files.h"

#include <io.h>

#include "platform/win32.h"

namespace {

// Whether a file couldn't be opened, as the last error tells, for another program's sake, such as a virus scanner's.
// The scanner may have it open for itself alone. Or it had it open when the file was deleted: until it closes it,
// Windows refuses everybody the name. Leaves the last error as it is.
bool isHeldByAnother(const char* path) {
    const DWORD error = GetLastError();
    if (error != ERROR_ACCESS_DENIED) return error == ERROR_SHARING_VIOLATION;
    constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    HANDLE const there = CreateFileA(path, 0, shareAll, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    const bool refused = there == INVALID_HANDLE_VALUE && GetLastError() == ERROR_ACCESS_DENIED;
    if (there != INVALID_HANDLE_VALUE) CloseHandle(there);
    SetLastError(error);
    return refused;
}

}  // namespace

std::FILE* openFile(const char* path, const char* mode) {
    // The runtime refuses some arguments by itself, without a word to the system.
    SetLastError(ERROR_INVALID_PARAMETER);
    std::FILE* file = std::fopen(path, mode);
    // A save replaces a file in two steps, a deletion and a copy. The second must not fail for who looks at the file,
    // so it is given two seconds.
    constexpr int tries = 100;
    for (int tried = 1; file == nullptr && *mode != 'r' && tried < tries && isHeldByAnother(path); ++tried) {
        Sleep(20);
        file = std::fopen(path, mode);
    }
    // It may have come free between try and question.
    if (file == nullptr && *mode != 'r') file = std::fopen(path, mode);
    if (file != nullptr) std::setvbuf(file, nullptr, _IONBF, 0);
    return file;
}

// The runtime's own query reports these modes too, but gives programs an extra bit and asks for three times besides.
bool queryFileStatus(const char* path, FileStatus& status) {
    WIN32_FILE_ATTRIBUTE_DATA found = {};
    if (GetFileAttributesExA(path, GetFileExInfoStandard, &found) == FALSE) return false;
    const bool writable = (found.dwFileAttributes & FILE_ATTRIBUTE_READONLY) == 0;
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        status = {writable ? writableDirectoryMode : readOnlyDirectoryMode, 0};
        return true;
    }
    status.mode = writable ? writableFileMode : readOnlyFileMode;
    status.size = static_cast<std::int64_t>(found.nFileSizeHigh) << 32 | found.nFileSizeLow;
    return true;
}

// Windows finds names in any case by itself; nothing is kept here.
SteadyDirectories::SteadyDirectories() = default;
SteadyDirectories::~SteadyDirectories() = default;

bool syncFile(std::FILE* file) {
    return std::fflush(file) == 0 && _commit(_fileno(file)) == 0;
}
