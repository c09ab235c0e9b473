#include "prepare/whole_file.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>

#include "platform/files.h"
#include "platform/win32.h"

std::optional<Bytes> readWholeFile(const char* path) {
    constexpr std::size_t blockSize = 65536;
    static_assert(wholeFileLimit % blockSize == 0);
    FileStatus status{};
    if (queryFileStatus(path, status) && status.size >= std::int64_t{wholeFileLimit}) return std::nullopt;
    std::FILE* const file = openFile(path, "rb");
    if (file == nullptr) return std::nullopt;
    Bytes bytes;
    std::array<std::uint8_t, blockSize> block{};
    std::size_t got = block.size();
    while (got != 0 && bytes.size() < wholeFileLimit) {
        got = std::fread(block.data(), 1, block.size(), file);
        bytes.insert(bytes.end(), block.begin(), block.begin() + static_cast<std::ptrdiff_t>(got));
    }
    const bool isWhole = std::ferror(file) == 0 && bytes.size() < wholeFileLimit;
    std::fclose(file);
    if (!isWhole) return std::nullopt;
    return bytes;
}

bool writeWholeFile(const char* path, const Bytes& bytes) {
    NewVersion version(path);
    std::FILE* const file = version.open(path);
    if (file == nullptr) return false;
    if (std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size() && version.complete()) {
        return version.giveName();
    }
    SetLastError(ERROR_DISK_FULL);  // the usual reason; a write and a close don't say theirs
    return false;
}

std::string writeFailure() {
    switch (GetLastError()) {
        case ERROR_DISK_FULL:
            return "the disk is full or reports an error";
        case ERROR_ACCESS_DENIED:
        case ERROR_WRITE_PROTECT:
            return "writing there isn't allowed";
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND:
            return "its directory is missing";
        case ERROR_SHARING_VIOLATION:
            return "another program has it open";
        default:
            return "the system's error is " + std::to_string(GetLastError());
    }
}
