#include "save/file_copy.h"

#include <algorithm>
#include <memory>

#include "platform/files.h"
#include "platform/win32.h"

namespace {

constexpr std::size_t bufferSize = 16'000;

std::int32_t openFailure(std::int32_t withoutCode) {
    const DWORD code = GetLastError();
    return code != 0 ? static_cast<std::int32_t>(code) : withoutCode;
}

// What a missing source leaves of the destination: its bytes as they were, or nothing. It is opened all the same,
// because the error is the destination's if both can't be opened.
std::int32_t sourceFailure(const char* destination) {
    const std::int32_t error = openFailure(copyError::sourceNotOpened);
    FileStatus status{};
    const bool existed = queryFileStatus(destination, status);
    SetLastError(NO_ERROR);
    std::FILE* file = openFile(destination, "a+b");
    if (file == nullptr) return openFailure(copyError::destinationNotOpened);
    std::fclose(file);
    if (!existed) DeleteFileA(destination);  // an empty file would pass for a backup
    return error;
}

bool copyBytes(std::FILE* source, std::FILE* destination, std::int32_t limit) {
    const auto buffer = std::make_unique_for_overwrite<char[]>(bufferSize);
    std::size_t left = static_cast<std::size_t>(limit);
    while (limit == 0 || left > 0) {
        const std::size_t wanted = limit == 0 ? bufferSize : std::min(bufferSize, left);
        const std::size_t got = std::fread(buffer.get(), 1, wanted, source);
        if (std::fwrite(buffer.get(), 1, got, destination) != got) return false;
        left -= got;
        if (got < wanted) return std::ferror(source) == 0;
    }
    return true;
}

// With `durable`, the copy counts only once the disk itself holds it: a source that is deleted next lives on in nothing
// else.
std::int32_t copyFile(const char* source, const char* destination, std::int32_t limit, CopyMode mode, bool durable) {
    SetLastError(NO_ERROR);
    std::FILE* from = openFile(source, "rb");
    if (from == nullptr) return sourceFailure(destination);
    std::FILE* to = openFile(destination, mode == CopyMode::overwrite ? "wb" : "a+b");
    if (to == nullptr) {
        const std::int32_t error = openFailure(copyError::destinationNotOpened);
        std::fclose(from);
        return error;
    }
    bool copied = copyBytes(from, to, limit);
    std::fclose(from);
    if (durable) copied = copied && syncFile(to);
    const bool closed = std::fclose(to) == 0;
    return copied && closed ? copyError::none : copyError::shortWrite;
}

}  // namespace

std::int32_t copyFileBytes(const char* source, const char* destination, std::int32_t limit, CopyMode mode) {
    return copyFile(source, destination, limit, mode, false);
}

std::int32_t appendFile(const char* source, const char* destination) {
    return copyFileBytes(source, destination, 0, CopyMode::append);
}

std::int32_t moveByCopy(const char* source, const char* destination) {
    const std::int32_t error = copyFile(source, destination, 0, CopyMode::overwrite, true);
    // Half a file under a live name would be read as one, and be copied over the whole one that still stands under the
    // temporary name by the next save; half a backup takes up the room that the live file needs.
    if (error == copyError::shortWrite) DeleteFileA(destination);
    if (error != copyError::none) return error;
    DeleteFileA(source);
    return copyError::none;
}
