#include "world/tag_scan.h"

#include <algorithm>
#include <cstring>

#include "platform/byte_order.h"
#include "world/neighborhood_layout.h"

namespace {

std::string_view asText(std::span<const std::uint8_t> bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

// Where the first `tag` in `bytes` begins, or npos. These files are full of zeros, and each relationship of a neighbor
// begins with a 1; so the search is for the last byte of the tag that isn't zero.
std::size_t findBytes(std::string_view bytes, std::string_view tag) {
    const std::size_t first = tag.find_first_not_of('\0'), last = tag.find_last_not_of('\0');
    const char* const begin = bytes.data();
    const char* const end = begin + (bytes.size() - tag.size()) + last + 1;  // one behind the last place for that byte
    const char* at = begin + last;
    while (at < end) {
        at = static_cast<const char*>(std::memchr(at, tag[last], static_cast<std::size_t>(end - at)));
        if (at == nullptr) break;
        const char* const start = at - last;
        if (start[first] == tag[first] && std::memcmp(start, tag.data(), tag.size()) == 0) {
            return static_cast<std::size_t>(start - begin);
        }
        ++at;
    }
    return std::string_view::npos;
}

// The offset of the first `tag` that begins at `from` or later, but before `end`; -1 if there is none.
std::int64_t scan(StreamFile& file, std::string_view tag, std::int64_t from, std::int64_t end) {
    while (from < end) {
        const std::string_view bytes = asText(file.bytesAt(from, tag.size()));
        if (bytes.size() < tag.size()) return -1;
        const std::size_t at = findBytes(bytes, tag);
        if (at != std::string_view::npos) {
            const std::int64_t offset = from + static_cast<std::int64_t>(at);
            return offset < end ? offset : -1;
        }
        from += static_cast<std::int64_t>(bytes.size() - tag.size() + 1);
    }
    return -1;
}

}  // namespace

std::int32_t findTag(StreamView stream, std::string_view tag, std::int32_t fileSize) {
    if (stream.endOfFile()) return tagNotFound;
    const std::int64_t start = stream.tell();
    const std::int64_t offset = stream.failed() ? -1 : scan(stream.file(), tag, start, fileSize);
    if (offset >= 0) return static_cast<std::int32_t>(offset + 1);

    // After a miss the cursor is at the end of the file as noted. In one that has grown since, the bytes there are
    // compared once more, and the cursor is behind what was read.
    stream.seek(std::max<std::int64_t>(start, fileSize));
    matchTagHere(stream, tag);
    return tagNotFound;
}

int matchTagHere(StreamView stream, std::string_view tag) {
    const std::int64_t start = stream.tell();
    for (const char expected : tag) {
        if (stream.peek() != static_cast<unsigned char>(expected)) return 0;
        stream.seek(stream.tell() + 1);
    }
    stream.seek(start);
    return 1;
}

std::int32_t readMapOffset(StreamView& stream) {
    stream.seek(0);
    stream.skip(iffHeader::mapOffset);
    const auto offset = stream.readBytes<iffHeader::mapOffsetSize>();
    return stream.good() ? static_cast<std::int32_t>(readU24Be(offset)) : 0;
}
