#include <fcntl.h>
#include <io.h>

#include <string>
#include <utility>

#include "platform/files.h"
#include "platform/win32.h"
#include "platform/windows/file_held.h"

struct NewVersion::State {
    bool close() { return stream == nullptr || std::fclose(std::exchange(stream, nullptr)) == 0; }

    std::string path;   // with drive and directory, so that the working directory doesn't matter
    std::string part;   // where the new version is until it gets its name
    std::string trial;  // a second name of the part, which shows that it can have one
    std::FILE* stream = nullptr;
    bool isNamedPart = false;  // has the name already, but isn't complete
};

namespace {

std::string fullPath(const char* path) {
    char full[MAX_PATH];
    const DWORD length = GetFullPathNameA(path, sizeof full, full, nullptr);
    return length > 0 && length < sizeof full ? full : path;
}

std::string directoryOf(const std::string& path) {
    return path.substr(0, path.find_last_of("\\/") + 1);
}

// Whether the file that has the name now may be replaced. True if there is none.
bool isReplaceable(const std::string& path) {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return true;
    if ((attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) == 0) return true;
    SetLastError(ERROR_ACCESS_DENIED);
    return false;
}

// Fails if the file exists. It may be a part of an earlier process, which can be the live file under a second name, so
// it is never emptied.
std::FILE* openPart(const std::string& part) {
    constexpr DWORD shareNothing = 0;
    HANDLE const file =
        CreateFileA(part.c_str(), GENERIC_WRITE, shareNothing, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return nullptr;
    const int descriptor = _open_osfhandle(reinterpret_cast<intptr_t>(file), _O_BINARY);
    std::FILE* stream = descriptor >= 0 ? _fdopen(descriptor, "wb") : nullptr;
    if (stream != nullptr) {
        std::setvbuf(stream, nullptr, _IONBF, 0);
        return stream;
    }
    if (descriptor >= 0) {
        _close(descriptor);
    } else {
        CloseHandle(file);
    }
    DeleteFileA(part.c_str());
    SetLastError(ERROR_TOO_MANY_OPEN_FILES);
    return nullptr;
}

}  // namespace

NewVersion::NewVersion(const char* path) : state_(std::make_unique<State>()) {
    state_->path = fullPath(path);
    const std::string part = directoryOf(state_->path) + "~part" + std::to_string(GetCurrentProcessId());
    state_->part = part + ".tmp";
    state_->trial = part + "-link.tmp";
}

NewVersion::~NewVersion() {
    discard();
}

std::FILE* NewVersion::open(Naming naming) {
    if (naming == Naming::atOnce) {
        state_->stream = openFile(state_->path.c_str(), "wb");
        state_->isNamedPart = state_->stream != nullptr;
    } else if (isReplaceable(state_->path)) {
        state_->stream = openPart(state_->part);
        // The older file of the name must not be deleted before it is known that the part can be linked. FAT, network
        // drives and Wine each refuse it with another error.
        const char* const part = state_->part.c_str();
        if (state_->stream != nullptr && CreateHardLinkA(state_->trial.c_str(), part, nullptr) == FALSE) {
            discard();
            SetLastError(ERROR_NOT_SUPPORTED);
        }
    }
    return state_->stream;
}

bool NewVersion::complete() {
    bool isWhole = syncFile(state_->stream);
    // A part stays open until it has its second name, so that no other process can open it.
    if (state_->isNamedPart) isWhole = state_->close() && isWhole;
    if (!isWhole) discard();
    return isWhole;
}

bool NewVersion::giveName() {
    if (std::exchange(state_->isNamedPart, false)) return true;
    const char* const path = state_->path.c_str();
    const bool isNamed = whileHeld(path, [&] {
        if (DeleteFileA(path) == FALSE && GetLastError() != ERROR_FILE_NOT_FOUND) return false;
        return CreateHardLinkA(path, state_->part.c_str(), nullptr) != FALSE;
    });
    const DWORD error = GetLastError();
    discard();
    SetLastError(error);
    return isNamed;
}

void NewVersion::discard() {
    const bool isPart = state_->stream != nullptr && !state_->isNamedPart;
    state_->close();
    if (isPart) {
        DeleteFileA(state_->part.c_str());
        DeleteFileA(state_->trial.c_str());
    }
    if (std::exchange(state_->isNamedPart, false)) DeleteFileA(state_->path.c_str());
}

// A running process has its part open, so Windows refuses to delete it.
void deleteLeftOverParts(const char* directory) {
    const std::string prefix = std::string(directory) + "\\";
    WIN32_FIND_DATAA found = {};
    HANDLE const search = FindFirstFileA((prefix + "~part*.tmp").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return;
    do {
        DeleteFileA((prefix + found.cFileName).c_str());
    } while (FindNextFileA(search, &found) != FALSE);
    FindClose(search);
}
