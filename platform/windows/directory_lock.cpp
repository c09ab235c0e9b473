#include <cstdio>

#include "platform/files.h"
#include "platform/win32.h"

namespace {

// A name that a directory has under each of its paths. Empty if the file system doesn't number its files.
std::string mutexName(const char* path) {
    constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    HANDLE const opened = CreateFileA(path, 0, shareAll, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    BY_HANDLE_FILE_INFORMATION directory = {};
    const bool isKnown = opened != INVALID_HANDLE_VALUE && GetFileInformationByHandle(opened, &directory) != FALSE;
    if (opened != INVALID_HANDLE_VALUE) CloseHandle(opened);
    if (!isKnown || (directory.nFileIndexHigh == 0 && directory.nFileIndexLow == 0)) return "";
    char name[64];
    std::snprintf(name, sizeof name, "Global\\Tidewright directory %08lx %08lx%08lx", directory.dwVolumeSerialNumber,
                  directory.nFileIndexHigh, directory.nFileIndexLow);
    return name;
}

}  // namespace

// A mutex, which leaves no file behind. It is this machine's alone. Another user's can't be opened; it exists only
// while that user's process has the lock or waits for it.
DirectoryLock::DirectoryLock(const char* path) {
    constexpr DWORD twoSeconds = 2000;
    const std::string name = mutexName(path);
    if (name.empty()) return;
    const DWORD begin = GetTickCount();
    HANDLE mutex = CreateMutexA(nullptr, FALSE, name.c_str());
    while (mutex == nullptr && GetLastError() == ERROR_ACCESS_DENIED && GetTickCount() - begin < twoSeconds) {
        Sleep(20);
        mutex = CreateMutexA(nullptr, FALSE, name.c_str());
    }
    if (mutex == nullptr) {
        if (GetLastError() == ERROR_ACCESS_DENIED) state_ = State::heldByAnother;
        return;
    }
    handle_ = reinterpret_cast<std::intptr_t>(mutex);
    const DWORD result = WaitForSingleObject(mutex, twoSeconds);
    if (result == WAIT_TIMEOUT) state_ = State::heldByAnother;
    // WAIT_ABANDONED: its last holder ended without releasing it.
    if (result == WAIT_OBJECT_0 || result == WAIT_ABANDONED) state_ = State::held;
}

DirectoryLock::~DirectoryLock() {
    if (handle_ == -1) return;
    HANDLE const mutex = reinterpret_cast<HANDLE>(handle_);
    if (state_ == State::held) ReleaseMutex(mutex);
    CloseHandle(mutex);
}
