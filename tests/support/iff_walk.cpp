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

// The content of a resource map, taken piece by piece; what lies behind its end reads as zero.
struct MapReader {
    std::string content;
    std::size_t at = 0;

    char byte() { return at++ < content.size() ? content[at - 1] : '\0'; }

    // Numbers and types stand there with their last byte first.
    std::string reversed(std::size_t size) {
        std::string text(size, ' ');
        std::generate(text.rbegin(), text.rend(), [this] { return byte(); });
        return text;
    }
    unsigned number(std::size_t size) { return bigEndian(reversed(size)); }

    std::string evenLabel() {
        std::string label;
        for (char next = byte(); next != '\0'; next = byte())
            label.push_back(next);
        if (label.size() % 2 == 0) byte();
        return label;
    }
};

// The map's entries as chunks without a size.
std::vector<WalkedChunk> walkMap(MapReader map, std::string& fault) {
    std::vector<WalkedChunk> listed;
    map.number(8);
    if (map.reversed(4) != "rsmp") fault = "the map doesn't open with its letters";
    map.number(4);
    for (unsigned types = map.number(4); types > 0 && map.at <= map.content.size(); --types) {
        const std::string type = map.reversed(4);
        for (unsigned entries = map.number(4); entries > 0 && map.at <= map.content.size(); --entries)
            listed.push_back({type, map.number(4), 0, map.number(2), map.number(2), map.evenLabel()});
    }
    if (map.at != map.content.size()) fault = "the map's entries don't fill it";
    return listed;
}

std::string faultOfMap(std::vector<WalkedChunk> listed, const std::vector<WalkedChunk>& chunks) {
    for (WalkedChunk chunk : chunks) {
        if (chunk.type == "XXXX" || chunk.type == "rsmp") continue;
        chunk.size = 0;
        const auto isChunks = [&chunk](WalkedChunk entry) {
            // A save writes the Sim's record name over this chunk's label, and the map keeps the template's.
            if (chunk.type == "OBJD") entry.label = chunk.label;
            return entry == chunk;
        };
        if (std::erase_if(listed, isChunks) != 1)
            return "the map doesn't list " + chunk.type + " " + std::to_string(chunk.id) + " once";
    }
    return listed.empty() ? "" : "the map lists what isn't there";
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
    const std::vector<WalkedChunk> listed = walkMap({content}, walk.fault);
    if (walk.fault.empty()) walk.fault = faultOfMap(listed, walk.chunks);
    return walk;
}

std::string textAt(View file, std::size_t offset, std::size_t size) {
    const View bytes = file.subspan(offset, size);
    return {bytes.begin(), bytes.end()};
}
