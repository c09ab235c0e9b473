// Builds the game's container: a header of 64 bytes, then chunks one behind the other, as a rule with a resource map
// as the last of them. What stands in the chunks is the caller's.
#ifndef GAMEFILES_IFF_BUILDER_H
#define GAMEFILES_IFF_BUILDER_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "gamefiles/byte_writer.h"

constexpr std::size_t iffHeaderSize = 64;
constexpr std::size_t iffChunkHeaderSize = 76;

struct IffChunk {
    std::string type = {};  // 4 letters
    std::uint16_t id = 0;
    std::string label = {};  // at most 64 characters
    Bytes content = {};
    std::uint16_t flags = 0x0010;
};

class IffBuilder {
 public:
    IffBuilder();

    // Appends a chunk and returns the file offset of its first letter.
    std::size_t add(const IffChunk& chunk);

    // Appends a chunk of type "XXXX", the free room of a chunk that the game deleted: `size` bytes with its header
    // (at least 76), the label stale, and no entry in the resource map. Returns its file offset.
    std::size_t addFreeRoom(std::size_t size);

    // Free room up to the file offset `offset`, which lies at least 76 bytes behind the end or at the end itself.
    void padTo(std::size_t offset);

    // Appends the resource map of all chunks added so far, and notes its place in the file's header, where it stands
    // with its high byte first. Returns its file offset. The last call; without it the header says 0, "no map".
    std::size_t addMap();

    std::size_t size() const { return file_.size(); }
    const Bytes& bytes() const { return file_; }

 private:
    struct MapEntry {
        IffChunk header;  // without content
        std::size_t offset = 0;
    };
    struct MapType {
        std::string type = {};
        std::vector<MapEntry> entries = {};
    };

    std::size_t append(const IffChunk& chunk);
    std::vector<MapType> entriesByType() const;

    Bytes file_;
    std::vector<MapEntry> entries_;
};

#endif
