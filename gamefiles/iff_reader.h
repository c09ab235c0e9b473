// Takes one of the game's IFF files apart into its chunks, the counterpart of iff_builder.h. The resource map is read
// as a chunk like any other; the header's offset of it is not looked at.
#ifndef GAMEFILES_IFF_READER_H
#define GAMEFILES_IFF_READER_H

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "gamefiles/iff_builder.h"

struct IffContents {
    // Why the file was refused, as the end of a sentence about it ("has ..."); empty for a valid file.
    std::string fault = {};
    // In the file's order, with free room and the resource map. A label ends before its first zero byte. Empty if the
    // file was refused.
    std::vector<IffChunk> chunks = {};
};

// Refuses a file without the game's header, and one that its chunks don't fill to the last byte.
IffContents readIff(std::span<const std::uint8_t> file);

#endif
