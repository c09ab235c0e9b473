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
    unsigned id = 0;
    unsigned flags = 0;
    std::string label;
};

struct IffWalk {
    std::string fault = {};  // something found wrong; empty for a valid file
    std::vector<WalkedChunk> chunks = {};

    // The first chunk of the type and id; one of size 0 if there is none.
    WalkedChunk find(const std::string& type, unsigned id) const;
};

// A whole file is valid when its header is the game's, its chunks tile the rest, and the resource map, if the header
// names one, lists each chunk but itself and free room with the offset, id, flags and label that the chunk has; the
// label of an object definition may differ. What else the map holds isn't looked at.
IffWalk walkIff(std::span<const std::uint8_t> file);

// The bytes at `offset` as text, all that follow by default.
std::string textAt(std::span<const std::uint8_t> file, std::size_t offset = 0, std::size_t size = std::dynamic_extent);

#endif
