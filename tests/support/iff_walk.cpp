#include "tests/support/iff_walk.h"

#include <algorithm>

namespace {

using View = std::span<const std::uint8_t>;

constexpr std::size_t headerSize = 64;
constexpr std::size_t chunkHeaderSize = 76;

unsigned bigEndian(const std::string& bytes) {
    unsigned value = 0;
    for (const char byte : bytes)
        value = value << 8 | static_cast<unsigned char>(byte);
    return value;
}

std::string lowFirst(std::size_t number, int size) {
    std::string bytes;
    for (; size > 0; --size, number >>= 8)
        bytes.push_back(static_cast<char>(number & 0xFF));
    return bytes;
}

// The entry of a chunk in the resource map.
std::string entryOf(const WalkedChunk& chunk) {
    const std::string numbers = lowFirst(chunk.offset, 4) + lowFirst(chunk.id, 2) + lowFirst(chunk.flags, 2);
    // A save writes the Sim's record name over this chunk's label, and the map keeps the template's.
    return chunk.type == "OBJD" ? numbers : numbers + chunk.label + '\0';
}

IffWalk walkChunks(View bytes) {
    IffWalk walk;
    for (std::size_t at = headerSize; at < bytes.size(); at += walk.chunks.back().size) {
        const std::string header = textAt(bytes.subspan(at).first(std::min(chunkHeaderSize, bytes.size() - at)));
        const std::size_t size = header.size() < chunkHeaderSize ? 0 : bigEndian(header.substr(4, 4));
        if (size < chunkHeaderSize || size > bytes.size() - at) {
            walk.fault = "no chunk fits at " + std::to_string(at);
            break;
        }
        const std::string label = header.substr(12, header.find('\0', 12) - 12);
        walk.chunks.push_back(
            {header.substr(0, 4), at, size, bigEndian(header.substr(8, 2)), bigEndian(header.substr(10, 2)), label});
    }
    return walk;
}

}  // namespace

WalkedChunk IffWalk::find(const std::string& type, unsigned id) const {
    const auto chunk = std::ranges::find_if(chunks, [&](const auto& c) { return c.type == type && c.id == id; });
    return chunk == chunks.end() ? WalkedChunk() : *chunk;
}

IffWalk walkIff(View file) {
    constexpr char header[] = "IFF FILE 2.5:TYPE FOLLOWED BY SIZE\0 JAMIE DOORNBOS & MAXIS 1";
    if (file.size() < headerSize || textAt(file, 0, 60) != std::string(header, 60))
        return {.fault = "not the game's header"};
    IffWalk walk = walkChunks(file);
    const unsigned mapOffset = bigEndian(textAt(file, 60, 4));
    if (!walk.fault.empty() || mapOffset == 0) return walk;
    const WalkedChunk map = walk.find("rsmp", 0);
    if (map.offset != mapOffset) return {.fault = "no map where the header says"};
    const std::string content = textAt(file, map.offset + chunkHeaderSize, map.size - chunkHeaderSize);
    for (const WalkedChunk& chunk : walk.chunks)
        if (chunk.type != "XXXX" && chunk.type != "rsmp" && content.find(entryOf(chunk)) == std::string::npos)
            walk.fault = "the map doesn't list " + chunk.type + " " + std::to_string(chunk.id);
    return walk;
}

std::string textAt(View file, std::size_t offset, std::size_t size) {
    const View bytes = file.subspan(offset, size);
    return {bytes.begin(), bytes.end()};
}
