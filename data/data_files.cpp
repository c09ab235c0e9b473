#include "data/data_files.h"

#include "data/template_chunks.h"
#include "gamefiles/character_chunks.h"
#include "gamefiles/character_file.h"
#include "gamefiles/file_writing.h"
#include "gamefiles/neighborhood_file.h"
#include "gamefiles/object_definition.h"
#include "gamefiles/text_chunk.h"

Bytes makeCharacterTemplate() {
    const PortraitColors colors;
    IffBuilder file;
    for (const IffChunk& chunk : behaviourChunks(BehaviourSet::older)) {
        file.add(chunk);
    }
    file.padTo(templateObject);
    file.add(objectDefinition(std::string(templateRecordName) + " - Sim", sampleGuid));
    file.add(templateNameChunk("Sim"));
    addPictureChunks(file, colors);
    addWebPictureChunk(file, colors);
    file.padTo(templateBodyStrings);
    file.add(templateBodyStringsChunk(adultSlots()));
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
