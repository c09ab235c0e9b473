#include "tests/support/iff_walk.h"

#include <algorithm>
#include <numeric>

namespace {

using View = std::span<const std::uint8_t>;

constexpr std::size_t headerSize = 64;
constexpr std::size_t chunkHeaderSize = 76;

std::size_t bigEndian(View bytes) {
    return std::accumulate(bytes.begin(), bytes.end(), std::size_t{0},
                           [](auto sum, auto byte) { return sum << 8 | byte; });
}

// The content of a resource map, taken piece by piece; what lies behind its end reads as zero.
struct MapReader {
    View content;
    std::size_t at = 0;

    std::uint8_t byte() { return at++ < content.size() ? content[at - 1] : std::uint8_t{0}; }
    std::size_t number(std::size_t size) {
        std::size_t value = 0;
        for (std::size_t i = 0; i < size; ++i) {
            value |= static_cast<std::size_t>(byte()) << 8 * i;
        }
        return value;
    }
    std::string reversedType() {
        std::string type(4, ' ');
        std::generate(type.rbegin(), type.rend(), [this] { return static_cast<char>(byte()); });
        return type;
    }
    std::string evenLabel() {
        std::string label;
        for (std::uint8_t next = byte(); next != 0; next = byte()) {
            label.push_back(static_cast<char>(next));
        }
        if (label.size() % 2 == 0) byte();
        return label;
    }
    WalkedChunk entry(const std::string& type) {
        WalkedChunk chunk = {type, number(4), 0, static_cast<unsigned>(number(2)), 0, {}};
        chunk.flags = static_cast<unsigned>(number(2));
        chunk.label = evenLabel();
        return chunk;
    }
};

void walkMap(View content, IffWalk& walk) {
    MapReader map{content};
    map.number(8);
    if (map.reversedType() != "rsmp") walk.fault = "the map doesn't open with its letters";
    map.number(4);
    for (std::size_t types = map.number(4); types > 0 && map.at <= content.size(); --types) {
        const std::string type = map.reversedType();
        for (std::size_t entries = map.number(4); entries > 0 && map.at <= content.size(); --entries) {
            walk.mapEntries.push_back(map.entry(type));
        }
    }
    if (map.at != content.size()) walk.fault = "the map's entries don't fill it";
}

void checkMap(IffWalk& walk) {
    std::size_t listed = 0;
    for (WalkedChunk chunk : walk.chunks) {
        if (chunk.type == "XXXX" || chunk.type == "rsmp") continue;
        ++listed;
        chunk.size = 0;
        const auto isChunks = [&chunk](WalkedChunk entry) {
            // A save writes the Sim's record name over this chunk's label, and the map keeps the template's.
            if (chunk.type == "OBJD") entry.label = chunk.label;
            return entry == chunk;
        };
        if (std::ranges::count_if(walk.mapEntries, isChunks) == 1) continue;
        walk.fault = "the map doesn't list " + chunk.type + " " + std::to_string(chunk.id) + " once";
    }
    if (walk.mapEntries.size() != listed) walk.fault = "the map lists what isn't there";
}

IffWalk walkFrom(View file, std::size_t start) {
    IffWalk walk;
    std::size_t at = start;
    while (at < file.size()) {
        const View rest = file.subspan(at);
        const std::size_t size = rest.size() < chunkHeaderSize ? 0 : bigEndian(rest.subspan(4, 4));
        if (size < chunkHeaderSize || size > rest.size()) {
            walk.fault = "no chunk fits at " + std::to_string(at);
            return walk;
        }
        const std::string label = textAt(rest, 12, 64);
        walk.chunks.push_back({textAt(rest, 0, 4), at, size, static_cast<unsigned>(bigEndian(rest.subspan(8, 2))),
                               static_cast<unsigned>(bigEndian(rest.subspan(10, 2))),
                               label.substr(0, label.find('\0'))});
        at += size;
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
    IffWalk walk;
    if (file.size() < headerSize || textAt(file, 0, 60) != std::string(header, 60)) {
        walk.fault = "not the game's header";
        return walk;
    }
    walk = walkFrom(file, headerSize);
    const std::size_t mapOffset = bigEndian(file.subspan(60, 4));
    if (!walk.fault.empty() || mapOffset == 0) return walk;
    const WalkedChunk map = walk.find("rsmp", 0);
    if (map.size == 0 || map.offset != mapOffset) {
        walk.fault = "no map where the header says";
        return walk;
    }
    walkMap(file.subspan(map.offset + chunkHeaderSize, map.size - chunkHeaderSize), walk);
    if (walk.fault.empty()) checkMap(walk);
    return walk;
}

IffWalk walkChunks(View bytes) {
    return walkFrom(bytes, 0);
}

std::vector<std::string> walkTexts(View file, const WalkedChunk& chunk) {
    std::vector<std::string> texts;
    if (chunk.size < chunkHeaderSize + 4) return texts;
    const std::string content = textAt(file, chunk.offset + chunkHeaderSize, chunk.size - chunkHeaderSize);
    const std::size_t count = static_cast<std::uint8_t>(content[2]) + 256U * static_cast<std::uint8_t>(content[3]);
    std::size_t at = 5;  // behind the first string's language
    while (texts.size() < count) {
        const std::size_t end = content.find('\0', at);
        const std::size_t commentEnd = end == std::string::npos ? end : content.find('\0', end + 1);
        if (commentEnd == std::string::npos) break;
        texts.push_back(content.substr(at, end - at));
        at = commentEnd + 2;
    }
    return texts;
}

std::string textAt(View file, std::size_t offset, std::size_t size) {
    const View bytes = file.subspan(offset, size);
    return {bytes.begin(), bytes.end()};
}
