// Walks a file of the game chunk by chunk, as the game itself does and the program doesn't, and says what is wrong with
// it. It shares nothing with the readers and builders whose files it judges.
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

    bool operator==(const WalkedChunk&) const = default;
};

struct IffWalk {
    std::string fault;  // the first thing found wrong; empty for a valid file
    std::vector<WalkedChunk> chunks;
    std::vector<WalkedChunk> mapEntries;  // without sizes; empty when the file has no resource map

    // The first chunk of the type and id; one of size 0 if there is none.
    WalkedChunk find(const std::string& type, unsigned id) const;
};

// A whole file is valid when its header is the game's, its chunks tile the rest, and the resource map, if the header
// names one, lists each chunk but itself and free room once, with the offset, id, flags and label that the chunk has;
// the label of an object definition may differ.
IffWalk walkIff(std::span<const std::uint8_t> file);

// A bare run of chunks, such as a family template: valid when they tile it.
IffWalk walkChunks(std::span<const std::uint8_t> bytes);

// The strings of a text chunk. Stops at the first that the chunk's end cuts off.
std::vector<std::string> walkTexts(std::span<const std::uint8_t> file, const WalkedChunk& chunk);

// The bytes at `offset` as text.
std::string textAt(std::span<const std::uint8_t> file, std::size_t offset, std::size_t size);

#endif
