#include "platform/windows/file_held.h"

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
