#include "world/stream.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstring>
#include <limits>

#include "platform/files.h"

namespace {

constexpr std::size_t smallestWindow = 64;  // enough for the longest run that `bytesAt` is asked for

}  // namespace

std::int32_t sizeOfFile(const char* path) {
    FileStatus status{};
    if (!queryFileStatus(path, status)) return 0;
    return static_cast<std::int32_t>(std::min<std::int64_t>(status.size, std::numeric_limits<std::int32_t>::max()));
}

StreamFile::~StreamFile() {
    if (file_ != nullptr) std::fclose(file_);
}

bool StreamFile::open(const char* path, Access access, std::size_t windowSize) {
    file_ = access == Access::read ? openFile(path, "rb") : openWhenFree(path, "r+b");
    windowCapacity_ = std::max(windowSize, smallestWindow);
    return file_ != nullptr;
}

bool StreamFile::close() {
    if (file_ == nullptr) return false;
    const bool closed = std::fclose(file_) == 0;
    file_ = nullptr;
    return allDone_ && closed;
}

bool StreamFile::closeOnDisk() {
    const bool isSynced = file_ != nullptr && syncFile(file_);
    return close() && isSynced;
}

std::span<const std::uint8_t> StreamFile::bytesAt(std::int64_t position, std::size_t least) {
    const std::int64_t at = position - windowStart_;
    const auto windowEnd = static_cast<std::int64_t>(windowSize_);
    if (at >= 0 && (windowEndsFile_ || windowEnd - at >= static_cast<std::int64_t>(least))) {
        const auto begin = static_cast<std::size_t>(std::min(at, windowEnd));
        return {window_.get() + begin, windowSize_ - begin};
    }
    if (!window_) window_ = std::make_unique_for_overwrite<std::uint8_t[]>(windowCapacity_);
    windowStart_ = position;
    windowSize_ = 0;
    const bool isReached = position <= LONG_MAX && std::fseek(file_, static_cast<long>(position), SEEK_SET) == 0;
    if (isReached) windowSize_ = std::fread(window_.get(), 1, windowCapacity_, file_);
    allDone_ = allDone_ && isReached && std::ferror(file_) == 0;
    windowEndsFile_ = windowSize_ < windowCapacity_;
    return {window_.get(), windowSize_};
}

ContentSum StreamFile::sum() {
    ContentSum sum;
    for (auto bytes = bytesAt(0, 1); !bytes.empty(); bytes = bytesAt(sum.size, 1)) {
        sum.add(bytes);
    }
    return sum;
}

bool StreamFile::write(std::span<const std::uint8_t> bytes) {
    windowStart_ = std::numeric_limits<std::int64_t>::max();  // no window: the write may change the bytes that it holds
    const bool written = std::fseek(file_, static_cast<long>(cursor_), SEEK_SET) == 0 &&
                         std::fwrite(bytes.data(), 1, bytes.size(), file_) == bytes.size();
    allDone_ = allDone_ && written;
    if (written) cursor_ += static_cast<std::int64_t>(bytes.size());
    return written;
}

void StreamView::read(std::span<std::uint8_t> destination) {
    if (!good()) {
        failed_ = true;
        return;
    }
    while (!destination.empty()) {
        const auto bytes = file_->bytesAt(tell(), 1);
        if (bytes.empty()) {
            endOfFile_ = failed_ = true;
            return;
        }
        const std::size_t count = std::min(bytes.size(), destination.size());
        std::memcpy(destination.data(), bytes.data(), count);
        destination = destination.subspan(count);
        file_->setCursor(tell() + static_cast<std::int64_t>(count));
    }
}

void StreamView::skip(std::int64_t count) {
    if (!good()) return;
    std::int64_t left = count;
    while (left > 0) {
        const auto bytes = file_->bytesAt(tell(), 1);
        if (bytes.empty()) {
            endOfFile_ = true;
            failed_ = left == count;
            return;
        }
        const std::int64_t moved = std::min(left, static_cast<std::int64_t>(bytes.size()));
        left -= moved;
        file_->setCursor(tell() + moved);
    }
}

int StreamView::peek() const {
    if (!good()) return -1;
    const auto bytes = file_->bytesAt(tell(), 1);
    return bytes.empty() ? -1 : bytes.front();
}

void StreamView::seek(std::int64_t position) {
    if (position < 0) {
        failed_ = true;
    } else {
        file_->setCursor(position);
    }
}

void StreamView::write(std::span<const std::uint8_t> bytes) {
    if (!good() || !file_->write(bytes)) failed_ = true;
}

void StreamView::write(std::string_view text) {
    write({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
}

void StreamView::writeAt(std::int64_t position, std::span<const std::uint8_t> bytes) {
    seek(position);
    write(bytes);
}

void StreamView::writeAt(std::int64_t position, std::string_view text) {
    seek(position);
    write(text);
}

void StreamView::writeZeros(std::int64_t count) {
    constexpr std::array<std::uint8_t, 64> zeros{};
    for (; count > 0 && good(); count -= static_cast<std::int64_t>(zeros.size())) {
        write(std::span(zeros).first(static_cast<std::size_t>(std::min<std::int64_t>(count, zeros.size()))));
    }
}
