// Builds the game's container, the IFF file: a header of 64 bytes, then chunks without gaps. The last chunk is usually
// a resource map, which lists the others. The contents of the chunks are up to the caller.
#ifndef GAMEFILES_IFF_BUILDER_H
#define GAMEFILES_IFF_BUILDER_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "gamefiles/byte_writer.h"

constexpr std::size_t iffHeaderSize = 64;
constexpr std::size_t iffMapOffsetSize = 4;  // of the header's last field, the offset of the resource map
constexpr std::size_t iffChunkHeaderSize = 76;

// Offsets in a chunk's header, behind its type. All numbers in it are big-endian.
namespace iffChunkHeader {
constexpr std::size_t size = 4;
constexpr std::size_t id = 8;
constexpr std::size_t flags = 10;
constexpr std::size_t label = 12;
}  // namespace iffChunkHeader

struct IffChunk {
    std::string type = {};  // 4 letters
    std::uint16_t id = 0;
    std::string label = {};  // at most 64 characters
    Bytes content = {};
    std::uint16_t flags = 0x0010;

    bool operator==(const IffChunk&) const = default;
};

// All offsets count from the start of the file.
class IffBuilder {
 public:
    IffBuilder();

    // Appends a chunk and returns the offset of its header.
    std::size_t add(const IffChunk& chunk);

    // The same for a chunk that the resource map lists under another label.
    std::size_t add(const IffChunk& chunk, const std::string& mapLabel);

    // Appends free room, the remains of a chunk that the game deleted: `size` bytes with the header, so at least 76.
    // Its type is "XXXX", its id and label are those of the old chunk, and the resource map doesn't list it. Returns
    // its offset.
    std::size_t addFreeRoom(std::size_t size);

    // Appends free room that ends at `offset`. Does nothing if the file ends there already.
    void padTo(std::size_t offset);

    // Appends the resource map and writes its offset into the file's header. Nothing may be added after it. Without a
    // map that field is 0. Returns the offset.
    std::size_t addMap();

    std::size_t size() const { return file_.size(); }
    const Bytes& bytes() const { return file_; }

 private:
    struct MapEntry {
        IffChunk header;  // without content
        std::size_t offset = 0;
    };

    std::size_t append(const IffChunk& chunk);
    Bytes mapContent() const;

    Bytes file_;
    std::vector<MapEntry> entries_;
};

#endif
