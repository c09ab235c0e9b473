#include "gamefiles/family_template.h"

#include "gamefiles/iff_builder.h"
#include "gamefiles/text_chunk.h"

namespace {

// House, number, funds, value of the house and number of friends are 0, and so are the member and the last number.
Bytes familyContent() {
    constexpr int version = 4;
    constexpr int newFamily = 24;  // the flags of a new family in the game
    constexpr std::size_t flagsField = 32;
    ByteWriter content;
    content.u32Le(0).u32Le(version).text("IMAF").fillTo(flagsField).u32Le(newFamily);
    return content.u32Le(1).u32Le(0).u32Le(0).written();  // one member
}

Bytes nameContent() {
    constexpr std::size_t nameEnd = firstTextOffset + 24;
    constexpr std::size_t fillSize = 3;
    return beginTextChunk(1).u8(usEnglish).fillTo(nameEnd).fillTo(nameEnd + fillSize, textFill).written();
}

}  // namespace

Bytes makeFamilyTemplate() {
    IffBuilder file;
    file.add({.type = "FAMI", .content = familyContent()});
    file.add({.type = "FAMs", .content = nameContent()});
    return {file.bytes().begin() + iffHeaderSize, file.bytes().end()};
}
