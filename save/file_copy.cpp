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

// The error if the source can't be opened. The destination is opened too, because its error counts if both fail. It is
// neither changed nor created: an empty file would look like a backup.
std::int32_t sourceFailure(const char* destination) {
    const std::int32_t error = openFailure(copyError::sourceNotOpened);
    SetLastError(NO_ERROR);
    std::FILE* file = openFile(destination, "r+b");
    if (file == nullptr && GetLastError() != ERROR_FILE_NOT_FOUND) return openFailure(copyError::destinationNotOpened);
    if (file != nullptr) std::fclose(file);
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

}  // namespace

std::int32_t copyFileBytes(const char* source, const char* destination, std::int32_t limit, CopyMode mode) {
    if (isSameFile(source, destination)) return copyError::destinationNotOpened;
    SetLastError(NO_ERROR);
    std::FILE* from = openFile(source, "rb");
    if (from == nullptr) return sourceFailure(destination);
    std::FILE* to = openFile(destination, mode == CopyMode::overwrite ? "wb" : "a+b");
    if (to == nullptr) {
        const std::int32_t error = openFailure(copyError::destinationNotOpened);
        std::fclose(from);
        return error;
    }
    const bool copied = copyBytes(from, to, limit);
    std::fclose(from);
    const bool closed = std::fclose(to) == 0;
    return copied && closed ? copyError::none : copyError::shortWrite;
}

std::int32_t appendFile(const char* source, const char* destination) {
    return copyFileBytes(source, destination, 0, CopyMode::append);
}

std::int32_t Move::copy(NewVersion::Naming naming) {
    if (isSameFile(source_.c_str(), destination_.c_str())) return copyError::destinationNotOpened;
    SetLastError(NO_ERROR);
    std::FILE* from = openFile(source_.c_str(), "rb");
    if (from == nullptr) return sourceFailure(destination_.c_str());
    std::FILE* to = copy_.open(naming);
    if (to == nullptr) {
        const std::int32_t error = openFailure(copyError::destinationNotOpened);
        std::fclose(from);
        return error;
    }
    const bool copied = copyBytes(from, to, 0);
    std::fclose(from);
    if (copied && copy_.complete()) return copyError::none;
    copy_.discard();
    return copyError::shortWrite;
}

void Move::copyAhead() {
    isCopied_ = copy(NewVersion::Naming::whenComplete) == copyError::none;
}

std::int32_t Move::finish() {
    const auto named = [this] { return copy_.giveName() ? copyError::none : openFailure(copyError::shortWrite); };
    std::int32_t error = isCopied_ ? copyError::none : copy(NewVersion::Naming::whenComplete);
    if (error == copyError::none) error = named();
    if (error == ERROR_NOT_SUPPORTED) {
        error = copy(NewVersion::Naming::atOnce);
        if (error == copyError::none) error = named();
    }
    if (error == copyError::none) DeleteFileA(source_.c_str());
    return error;
}

std::int32_t moveByCopy(const char* source, const char* destination) {
    return Move(source, destination).finish();
}
