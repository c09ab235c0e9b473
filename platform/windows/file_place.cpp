#include "platform/file_place.h"

#include <fcntl.h>
#include <io.h>

#include "platform/files.h"
#include "platform/win32.h"
#include "platform/windows/file_held.h"

// A file that anyone has open can't be replaced, only renamed.
bool FilePlace::renameReplaces() {
    return false;
}

// A name is a whole path here, so that the working directory doesn't matter.
FilePlace::FilePlace(const char* path) {
    char full[MAX_PATH];
    const DWORD length = GetFullPathNameA(path, sizeof full, full, nullptr);
    name_ = length > 0 && length < sizeof full ? full : path;
    WIN32_FIND_DATAA found = {};
    HANDLE const search = FindFirstFileA(name_.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return;
    FindClose(search);
    name_.replace(name_.find_last_of('\\') + 1, std::string::npos, found.cFileName);
}

FilePlace::~FilePlace() = default;

bool FilePlace::isReplaceable() const {
    const DWORD attributes = GetFileAttributesA(name_.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return true;
    if ((attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) == 0) return true;
    SetLastError(ERROR_ACCESS_DENIED);
    return false;
}

// A name whose file is deleted, but still open elsewhere, gives another error.
bool FilePlace::isFree(const std::string& name) const {
    return GetFileAttributesA(name.c_str()) == INVALID_FILE_ATTRIBUTES && GetLastError() == ERROR_FILE_NOT_FOUND;
}

// The directory decides who may use the file.
std::FILE* FilePlace::create(const std::string& name, const char*) const {
    constexpr DWORD shareNothing = 0;
    HANDLE const file =
        CreateFileA(name.c_str(), GENERIC_WRITE, shareNothing, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return nullptr;
    const int descriptor = _open_osfhandle(reinterpret_cast<intptr_t>(file), _O_BINARY);
    std::FILE* const stream = descriptor >= 0 ? _fdopen(descriptor, "wb") : nullptr;
    if (stream != nullptr) {
        std::setvbuf(stream, nullptr, _IONBF, 0);
        return stream;
    }
    if (descriptor >= 0) {
        _close(descriptor);
    } else {
        CloseHandle(file);
    }
    DeleteFileA(name.c_str());
    SetLastError(ERROR_TOO_MANY_OPEN_FILES);
    return nullptr;
}

bool FilePlace::rename(const std::string& from, const std::string& to) const {
    constexpr DWORD durably = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    return whileHeld(from.c_str(), [&] { return MoveFileExA(from.c_str(), to.c_str(), durably) != FALSE; });
}

bool FilePlace::remove(const std::string& name) const {
    return deleteWhenFree(name.c_str());
}

bool FilePlace::sync() const {
    return syncDirectory(name_.substr(0, name_.find_last_of('\\') + 1).c_str());
}
