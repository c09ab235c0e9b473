#include "gamefiles/iff_reader.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace {

using View = std::span<const std::uint8_t>;

std::uint32_t bigEndian(View bytes) {
    std::uint32_t value = 0;
    for (const std::uint8_t byte : bytes) {
        value = value << 8 | byte;
    }
    return value;
}

IffChunk chunkOf(View bytes) {
    const View label = bytes.subspan(iffChunkHeader::label, iffChunkHeaderSize - iffChunkHeader::label);
    const View content = bytes.subspan(iffChunkHeaderSize);
    return {.type = {bytes.begin(), bytes.begin() + iffChunkHeader::size},
            .id = static_cast<std::uint16_t>(bigEndian(bytes.subspan(iffChunkHeader::id, 2))),
            .label = {label.begin(), std::ranges::find(label, 0)},
            .content = {content.begin(), content.end()},
            .flags = static_cast<std::uint16_t>(bigEndian(bytes.subspan(iffChunkHeader::flags, 2)))};
}

}  // namespace

IffContents readIff(View file) {
    const Bytes header = IffBuilder().bytes();
    if (file.size() < header.size() || !std::equal(header.begin(), header.end() - iffMapOffsetSize, file.begin())) {
        return {.fault = "doesn't begin as the game's IFF files do"};
    }
    IffContents contents;
    for (View rest = file.subspan(iffHeaderSize); !rest.empty();) {
        const std::string at = std::to_string(file.size() - rest.size());
        if (rest.size() < iffChunkHeaderSize) return {.fault = "has bytes left over at " + at};
        const std::size_t size = bigEndian(rest.subspan(iffChunkHeader::size, 4));
        if (size < iffChunkHeaderSize) return {.fault = "has a chunk without room for its header at " + at};
        if (size > rest.size()) return {.fault = "ends inside the chunk at " + at};
        contents.chunks.push_back(chunkOf(rest.first(size)));
        rest = rest.subspan(size);
    }
    return contents;
}
