// Reading and patching the game's IFF files. Their chunks are not walked: each piece is found by scanning the raw bytes
// for a tag, from the cursor on.
#ifndef WORLD_STREAM_H
#define WORLD_STREAM_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <span>
#include <string_view>

#include "world/content_sum.h"

// The size of a file in bytes, at most 2^31 - 1; 0 if there is no such file.
std::int32_t sizeOfFile(const char* path);

// An open file and its cursor. Bytes are read a window at a time, so that a scan runs at the speed of memory.
class StreamFile {
 public:
    enum class Access { read, readAndPatch };

    StreamFile() = default;
    StreamFile(const StreamFile&) = delete;
    StreamFile& operator=(const StreamFile&) = delete;
    ~StreamFile();

    // Opens an existing file without changing it. `windowSize` is how many bytes one read takes: the whole file for a
    // reader that scans all of it, a few pages for one that looks up pieces. False if the file can't be opened.
    bool open(const char* path, Access access, std::size_t windowSize);

    // Closes the file. True only if every read, every write and the closing itself succeeded.
    bool close();

    // Syncs the file to the disk and closes it. True only if that succeeded as well.
    bool closeOnDisk();

    std::int64_t cursor() const { return cursor_; }
    void setCursor(std::int64_t position) { cursor_ = position; }

    // The bytes from `position` on that are in the window: at least `least` (up to 64), unless the file ends before
    // that. Valid until the next call.
    std::span<const std::uint8_t> bytesAt(std::int64_t position, std::size_t least);

    // The sum of the whole file, of the bytes in the window as far as it has them.
    ContentSum sum();

    // Writes at the cursor and moves it. `close` also reports a write that failed.
    bool write(std::span<const std::uint8_t> bytes);

 private:
    std::FILE* file_ = nullptr;
    std::int64_t cursor_ = 0;
    bool allDone_ = true;  // no read and no write has failed
    std::unique_ptr<std::uint8_t[]> window_;
    std::size_t windowCapacity_ = 0;
    std::size_t windowSize_ = 0;
    std::int64_t windowStart_ = 0;
    bool windowEndsFile_ = false;
};

// A routine's own view of an open file, passed by value. All views of a file share its cursor, but each has its own
// flags, which begin as a copy of the caller's. So a routine knows of its caller's failures, and the caller never knows
// of the routine's.
class StreamView {
 public:
    explicit StreamView(StreamFile& file) : file_(&file) {}

    bool endOfFile() const { return endOfFile_; }
    bool failed() const { return failed_; }
    bool good() const { return !endOfFile_ && !failed_; }

    // Copies the next bytes. If fewer are left, copies those and raises both flags. If a flag was up already, copies
    // nothing and raises "failed".
    void read(std::span<std::uint8_t> destination);

    // The next N bytes. Those that can't be read are zero.
    template <std::size_t N>
    std::array<std::uint8_t, N> readBytes();

    // Moves the cursor forward. If the file ends first, stops there and raises "end of file", and "failed" too if the
    // cursor couldn't move at all. Does nothing with a flag up.
    void skip(std::int64_t count);

    // The byte at the cursor; -1 at the end of the file or with a flag up. Raises no flag.
    int peek() const;

    std::int64_t tell() const { return file_->cursor(); }

    // Sets the cursor, whatever the flags are. A negative position only raises "failed".
    void seek(std::int64_t position);

    // Writes at the cursor and moves it. Writes nothing with a flag up. A write that fails raises "failed".
    void write(std::span<const std::uint8_t> bytes);
    void write(std::string_view text);
    void writeZeros(std::int64_t count);

    // Seeks to `position` first.
    void writeAt(std::int64_t position, std::span<const std::uint8_t> bytes);
    void writeAt(std::int64_t position, std::string_view text);

    StreamFile& file() const { return *file_; }

 private:
    StreamFile* file_;
    bool endOfFile_ = false;
    bool failed_ = false;
};

template <std::size_t N>
std::array<std::uint8_t, N> StreamView::readBytes() {
    std::array<std::uint8_t, N> bytes{};
    read(bytes);
    return bytes;
}

#endif
