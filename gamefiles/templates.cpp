#include "gamefiles/templates.h"

#include "gamefiles/character_ids.h"
#include "gamefiles/object_definition.h"

static_assert(templateObject + objectDefinitionSize == templateName);

namespace {

// House, number, funds, value of the house and number of friends are 0, and so are the member and what follows it.
Bytes familyContent(Editions editions) {
    const bool isLater = editions == Editions::later;
    const int version = isLater ? 9 : 4;
    const std::size_t size = isLater ? 60 : 48;
    constexpr int newFamily = 24;  // the flags of a new family in the game
    constexpr std::size_t flagsField = 32;
    ByteWriter content;
    content.u32Le(0).u32Le(version).text("IMAF").fillTo(flagsField).u32Le(newFamily);
    return content.u32Le(1).fillTo(size).written();  // one member
}

Bytes nameContent() {
    constexpr std::size_t nameEnd = firstTextOffset + 24;
    constexpr std::size_t fillSize = 3;
    return beginTextChunk(1).u8(usEnglish).fillTo(nameEnd).fillTo(nameEnd + fillSize, textFill).written();
}

}  // namespace

// The zero bytes behind the name's field make up a second, empty text, the biography. This holds for a name of any
// length up to 63.
IffChunk templateNameChunk(const std::string& name) {
    constexpr std::size_t nameSize = 64;
    constexpr std::size_t zerosBehind = 7;
    ByteWriter content = beginTextChunk(2);
    content.u8(usEnglish).field(name, nameSize + zerosBehind);
    return {.type = "CTSS", .id = characterNameId, .content = content.written()};
}

// The chunk counts 33 texts, which fits a text that ends with entry 32. With a larger count the game would take the
// fill for the winter outfit of a Sim without one. The zero bytes behind the fill complete the 33 texts if the text
// ends with entry 29. For later editions it counts 35, which every text has.
IffChunk templateBodyStringsChunk(const BodySlots& slots, Editions editions) {
    constexpr std::size_t zerosBehind = 12;
    const BodyEnding ending = editions == Editions::later ? BodyEnding::atEntry34 : BodyEnding::atEntry32;
    IffChunk chunk = bodyStringsChunk("adult", slots, ending, templateBodyTextSize);
    chunk.content.resize(chunk.content.size() + zerosBehind);
    return chunk;
}

Bytes makeFamilyTemplate(Editions editions) {
    IffBuilder file;
    file.add({.type = "FAMI", .content = familyContent(editions)});
    file.add({.type = "FAMs", .content = nameContent()});
    return {file.bytes().begin() + iffHeaderSize, file.bytes().end()};
}
