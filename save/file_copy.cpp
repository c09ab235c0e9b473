#include "save/file_copy.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <span>

#include "platform/files.h"
#include "platform/win32.h"

namespace {

constexpr std::size_t copyBlock = 16'000;
constexpr std::size_t sumBlock = 256'000;
constexpr std::size_t noLimit = std::numeric_limits<std::size_t>::max();

std::int32_t openFailure(std::int32_t withoutCode) {
    const DWORD code = GetLastError();
    return code != 0 ? static_cast<std::int32_t>(code) : withoutCode;
}

// The error if the source can't be opened. The destination is opened too, because its error counts if both fail. It is
// neither changed nor left behind if it is new: an empty file would look like a backup.
std::int32_t sourceFailure(const char* destination) {
    const std::int32_t error = openFailure(copyError::sourceNotOpened);
    FileStatus status{};
    const bool wasThere = queryFileStatus(destination, status);
    SetLastError(NO_ERROR);
    std::FILE* file = openFile(destination, "a+b");
    if (file == nullptr) return openFailure(copyError::destinationNotOpened);
    std::fclose(file);
    if (!wasThere) DeleteFileA(destination);
    return error;
}

// Hands at most `limit` bytes to `take`, a block of `blockSize` at a time. False if it returns false, or if they can't
// be read.
template <typename Take>
bool readBlocks(std::FILE* file, std::size_t blockSize, std::size_t limit, Take take) {
    const auto buffer = std::make_unique_for_overwrite<std::uint8_t[]>(blockSize);
    while (limit > 0) {
        const std::size_t wanted = std::min(blockSize, limit);
        const std::size_t got = std::fread(buffer.get(), 1, wanted, file);
        if (!take(std::span<const std::uint8_t>(buffer.get(), got))) return false;
        limit -= got;
        if (got < wanted) return std::ferror(file) == 0;
    }
    return true;
}

bool addTo(ContentSum& sum, std::FILE* file) {
    return readBlocks(file, sumBlock, noLimit, [&](std::span<const std::uint8_t> block) {
        sum.add(block);
        return true;
    });
}

bool copyBytes(std::FILE* source, std::FILE* destination, std::int32_t limit, ContentSum& sum) {
    const std::size_t most = limit == 0 ? noLimit : static_cast<std::size_t>(limit);
    return readBlocks(source, copyBlock, most, [&](std::span<const std::uint8_t> block) {
        sum.add(block);
        return std::fwrite(block.data(), 1, block.size(), destination) == block.size();
    });
}

}  // namespace

bool isHeldByAnother(std::int32_t error) {
    return error == ERROR_SHARING_VIOLATION;
}

std::int32_t copyFileBytes(const char* source, const char* destination, std::int32_t limit, CopyMode mode,
                           ContentSum* whole) {
    if (isSameFile(source, destination)) return copyError::destinationNotOpened;
    SetLastError(NO_ERROR);
    std::FILE* from = openWhenFree(source, "rb");
    if (from == nullptr) return sourceFailure(destination);
    SetLastError(NO_ERROR);
    std::FILE* to = openWhenFree(destination, mode == CopyMode::overwrite ? "wb" : "a+b");
    if (to == nullptr) {
        const std::int32_t error = openFailure(copyError::destinationNotOpened);
        std::fclose(from);
        return error;
    }
    ContentSum sum;
    bool copied = copyBytes(from, to, limit, sum);
    if (whole != nullptr) {
        copied = copied && addTo(sum, from);
        *whole = sum;
    }
    std::fclose(from);
    const bool closed = std::fclose(to) == 0;
    return copied && closed ? copyError::none : copyError::shortWrite;
}

std::int32_t appendFile(const char* source, const char* destination) {
    return copyFileBytes(source, destination, 0, CopyMode::append);
}

bool sumOfFile(const char* path, ContentSum& sum) {
    std::FILE* const file = openWhenFree(path, "rb");
    if (file == nullptr) return false;
    sum = {};
    const bool isRead = addTo(sum, file);
    std::fclose(file);
    return isRead;
}

std::int32_t StagedCopy::make() {
    if (isSameFile(source_.c_str(), destination_.c_str())) return copyError::destinationNotOpened;
    SetLastError(NO_ERROR);
    std::FILE* from = openWhenFree(source_.c_str(), "rb");
    const std::int32_t sourceError = from == nullptr ? openFailure(copyError::sourceNotOpened) : copyError::none;
    SetLastError(NO_ERROR);
    std::FILE* to = version_.open(model_.c_str());
    std::int32_t error = to == nullptr ? openFailure(copyError::destinationNotOpened) : sourceError;
    if (error == copyError::none) {
        sum_ = {};
        const bool isWhole = copyBytes(from, to, 0, sum_) && version_.complete();
        if (!isWhole) error = copyError::shortWrite;
    }
    if (from != nullptr) std::fclose(from);
    if (error != copyError::none) version_.discard();
    return error;
}

std::int32_t StagedCopy::setAside() {
    return version_.setAside() ? copyError::none : openFailure(copyError::shortWrite);
}

std::int32_t StagedCopy::giveName() {
    return version_.giveName() ? copyError::none : openFailure(copyError::shortWrite);
}

void StagedCopy::deleteSource() {
    if (isOnDisk()) deleteWhenFree(source_.c_str());
}

std::int32_t moveByCopy(const char* source, const char* destination) {
    StagedCopy copy(source, destination, destination);
    std::int32_t error = copy.make();
    if (error == copyError::none) error = copy.giveName();
    if (error == copyError::none) copy.deleteSource();
    return error;
}
