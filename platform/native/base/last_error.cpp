#include "platform/native/base/last_error.h"

#include <algorithm>
#include <cerrno>
#include <iterator>

#include "platform/native/api/system.h"

namespace {

thread_local DWORD lastError = NO_ERROR;

constexpr struct {
    int error;
    DWORD code;
} codes[] = {
    {ENOENT, ERROR_FILE_NOT_FOUND},      {ENOTDIR, ERROR_PATH_NOT_FOUND},
    {EMFILE, ERROR_TOO_MANY_OPEN_FILES}, {ENFILE, ERROR_TOO_MANY_OPEN_FILES},
    {EACCES, ERROR_ACCESS_DENIED},       {EPERM, ERROR_ACCESS_DENIED},
    {EISDIR, ERROR_ACCESS_DENIED},       {ENXIO, ERROR_ACCESS_DENIED},
    {EBADF, ERROR_INVALID_HANDLE},       {ENOMEM, ERROR_NOT_ENOUGH_MEMORY},
    {EROFS, ERROR_WRITE_PROTECT},        {EINVAL, ERROR_INVALID_PARAMETER},
    {ENOSPC, ERROR_DISK_FULL},           {EDQUOT, ERROR_DISK_FULL},
    {EEXIST, ERROR_ALREADY_EXISTS},      {ENAMETOOLONG, ERROR_FILENAME_EXCED_RANGE},
};

}  // namespace

DWORD GetLastError() {
    return lastError;
}

void SetLastError(DWORD code) {
    lastError = code;
}

DWORD windowsError(int error) {
    const auto* const found =
        std::find_if(std::begin(codes), std::end(codes), [&](const auto& row) { return row.error == error; });
    return found == std::end(codes) ? ERROR_GEN_FAILURE : found->code;
}
