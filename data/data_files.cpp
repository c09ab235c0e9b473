#include "data/data_files.h"

#include "gamefiles/character_chunks.h"
#include "gamefiles/character_file.h"
#include "gamefiles/file_writing.h"
#include "gamefiles/neighborhood_file.h"
#include "gamefiles/object_definition.h"
#include "gamefiles/text_chunk.h"

namespace {

constexpr std::size_t templateObject = 3976;
constexpr std::size_t templateName = 4268;
constexpr std::size_t templateBodyStrings = 54016;
static_assert(templateObject + objectDefinitionSize == templateName);

// The name's 64 bytes, then 7 zero bytes. Zero bytes read on as a second, empty text, the biography, whether the name
// takes one of its bytes or 63.
IffChunk templateNameChunk() {
    constexpr std::size_t nameSize = 64;
    constexpr std::size_t zerosBehind = 7;
    ByteWriter content = beginTextChunk(2);
    content.u8(usEnglish).field("Sim", nameSize).fillTo(firstTextOffset + nameSize + zerosBehind);
    return {.type = "CTSS", .id = characterNameId, .content = content.written()};
}

// The chunk's count of 33 strings is that of a text that ends with entry 32: with one more, the game would take the
// fill for a winter outfit where a Sim has none. Behind the fill stand zero bytes, so that the chunk reads as 33
// strings also when its text ends with entry 29.
IffChunk templateBodyStringsChunk() {
    constexpr std::size_t closingZeros = 12;
    IffChunk chunk = sampleBodyStringsChunk({});
    chunk.content.resize(chunk.content.size() + closingZeros);
    return chunk;
}

}  // namespace

Bytes makeCharacterTemplate() {
    const PortraitColors colors;
    IffBuilder file;
    addBehaviourChunks(file);
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
    constexpr std::size_t nameContentSize = 32;
    constexpr std::size_t pad = 3;  // behind the longest name and the two zero bytes that close it, less one
    const SampleFamily family = {.number = 0,
                                 .funds = 0,
                                 .members = {0},
                                 .house = 0,
                                 .houseValue = 0,
                                 .friends = 0,
                                 .flags = 24,  // as the game leaves a family fresh from creation
                                 .trailingNumbers = 1};
    ByteWriter name = beginTextChunk(1);
    name.u8(usEnglish).fillTo(nameContentSize - pad).fillTo(nameContentSize, textFill);
    IffBuilder file;
    file.add(sampleFamilyChunk(family));
    file.add({.type = "FAMs", .content = name.written()});
    return {file.bytes().begin() + iffHeaderSize, file.bytes().end()};
}

bool writeDataFiles(const std::filesystem::path& directory) {
    return writeFile(directory / "Template.iff", makeCharacterTemplate()) &&
           writeFile(directory / "famtemplate", makeFamilyTemplate());
}
