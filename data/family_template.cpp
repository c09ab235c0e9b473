#include "data/family_template.h"

#include "gamefiles/iff_builder.h"
#include "gamefiles/neighborhood_file.h"
#include "gamefiles/text_chunk.h"

Bytes makeFamilyTemplate() {
    constexpr std::size_t nameEnd = firstTextOffset + 24;
    constexpr std::size_t fillSize = 3;
    const SampleFamily family = {.number = 0,
                                 .funds = 0,
                                 .members = {0},
                                 .house = 0,
                                 .houseValue = 0,
                                 .friends = 0,
                                 .flags = 24,  // a new family in the game
                                 .trailingNumbers = 1};
    ByteWriter name = beginTextChunk(1);
    name.u8(usEnglish).fillTo(nameEnd).fillTo(nameEnd + fillSize, textFill);
    IffBuilder file;
    file.add(sampleFamilyChunk(family));
    file.add({.type = "FAMs", .content = name.written()});
    return {file.bytes().begin() + iffHeaderSize, file.bytes().end()};
}
