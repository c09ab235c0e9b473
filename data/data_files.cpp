#include "data/data_files.h"

#include "gamefiles/character_chunks.h"
#include "gamefiles/character_file.h"
#include "gamefiles/file_writing.h"
#include "gamefiles/neighborhood_file.h"
#include "gamefiles/object_definition.h"
#include "gamefiles/text_chunk.h"

namespace {

// Offsets of the chunks in "Template.iff".
constexpr std::size_t templateObject = 3976;
constexpr std::size_t templateName = 4268;
constexpr std::size_t templateBodyStrings = 54016;
static_assert(templateObject + objectDefinitionSize == templateName);

// The zero bytes behind the name's field make up a second, empty text, the biography. This holds for a name of any
// length up to 63.
IffChunk templateNameChunk() {
    constexpr std::size_t nameSize = 64;
    constexpr std::size_t zerosBehind = 7;
    ByteWriter content = beginTextChunk(2);
    content.u8(usEnglish).field("Sim", nameSize + zerosBehind);
    return {.type = "CTSS", .id = characterNameId, .content = content.written()};
}

// The chunk counts 33 texts, which fits a text that ends with entry 32. With a larger count the game would take the
// fill for the winter outfit of a Sim without one. The zero bytes behind the fill complete the 33 texts if the text
// ends with entry 29.
IffChunk templateBodyStringsChunk() {
    constexpr std::size_t zerosBehind = 12;
    IffChunk chunk = sampleBodyStringsChunk({});
    chunk.content.resize(chunk.content.size() + zerosBehind);
    return chunk;
}

}  // namespace

Bytes makeCharacterTemplate() {
    const PortraitColors colors;
    IffBuilder file;
    for (const IffChunk& chunk : behaviourChunks(BehaviourSet::older)) {
        file.add(chunk);
    }
    file.padTo(templateObject);
    file.add(objectDefinition("user00000 - Sim", sampleGuid));
    file.add(templateNameChunk());
    addPictureChunks(file, colors);
    addWebPictureChunk(file, colors);
    file.padTo(templateBodyStrings);
    file.add(templateBodyStringsChunk());
    file.addMap();
    return file.bytes();
}

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

bool writeDataFiles(const std::filesystem::path& directory) {
    return writeFile(directory / "Template.iff", makeCharacterTemplate()) &&
           writeFile(directory / "famtemplate", makeFamilyTemplate());
}
