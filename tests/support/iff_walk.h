// Walks one of the game's files chunk by chunk, as the game does and the program doesn't, and reports the first fault.
// It shares no code with the readers and builders whose files it checks.
#ifndef TESTS_SUPPORT_IFF_WALK_H
#define TESTS_SUPPORT_IFF_WALK_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

struct WalkedChunk {
    std::string type;
    std::size_t offset = 0;  // of its first letter
    std::size_t size = 0;    // with the 76 bytes of its header
    std::size_t id = 0;
    std::size_t flags = 0;
    std::string label;

    // In the resource map. A save writes the Sim's record name over the label of "OBJD", and the map keeps the
    // template's.
    std::string entry() const {
        std::string numbers;
        for (const std::size_t word : {offset & 0xFFFF, offset >> 16, id, flags}) {
            numbers.push_back(static_cast<char>(word & 0xFF));
            numbers.push_back(static_cast<char>(word >> 8));
        }
        return type == "OBJD" ? numbers : numbers + label + '\0';
    }
};

struct IffWalk {
    std::string fault = {};  // something found wrong; empty for a valid file
    std::vector<WalkedChunk> chunks = {};

    // The first chunk of the type and id; one of size 0 if there is none.
    WalkedChunk find(const std::string& type, std::size_t id) const {
        for (const WalkedChunk& chunk : chunks)
            if (chunk.type == type && chunk.id == id) return chunk;
        return {};
    }
};

// The bytes at `offset` as text, all that follow by default.
inline std::string textAt(std::span<const std::uint8_t> file, std::size_t offset = 0,
                          std::size_t size = std::dynamic_extent) {
    const auto bytes = file.subspan(offset, size);
    return {bytes.begin(), bytes.end()};
}

// A whole file is valid when its header is the game's, its chunks tile the rest, and the resource map, if the header
// names one, lists each chunk but itself and free room with the offset, id, flags and label that the chunk has; the
// label of an object definition may differ. What else the map holds isn't looked at.
inline IffWalk walkIff(std::span<const std::uint8_t> bytes) {
    const std::string file = textAt(bytes), header("IFF FILE 2.5:TYPE FOLLOWED BY SIZE\0 JAMIE DOORNBOS & MAXIS 1", 60);
    if (file.size() < 64 || !file.starts_with(header)) return {.fault = "not the game's header"};
    const auto numberAt = [&](std::size_t offset, std::size_t size) {
        std::size_t number = 0;
        for (const char byte : file.substr(offset, size))
            number = number << 8 | static_cast<unsigned char>(byte);
        return number;
    };
    IffWalk walk;
    for (std::size_t at = 64; at < file.size(); at += walk.chunks.back().size) {
        const std::size_t left = file.size() - at, size = left < 76 ? 0 : numberAt(at + 4, 4);
        if (size < 76 || size > left) return {.fault = "no chunk fits at " + std::to_string(at)};
        const std::string label = file.substr(at + 12, 64).c_str();
        walk.chunks.push_back({file.substr(at, 4), at, size, numberAt(at + 8, 2), numberAt(at + 10, 2), label});
    }
    const std::size_t mapOffset = numberAt(60, 4);
    if (mapOffset == 0) return walk;
    const WalkedChunk map = walk.find("rsmp", 0);
    if (map.offset != mapOffset) return {.fault = "no map where the header says"};
    const std::string content = file.substr(map.offset + 76, map.size - 76);
    for (const WalkedChunk& chunk : walk.chunks)
        if (chunk.type != "XXXX" && chunk.type != "rsmp" && content.find(chunk.entry()) == std::string::npos)
            walk.fault = "the map doesn't list " + chunk.type + " " + std::to_string(chunk.id);
    return walk;
}

#endif
