#include "sample/fact_template.h"

#include "gamefiles/file_writing.h"
#include "gamefiles/object_definition.h"
#include "gamefiles/text_chunk.h"
#include "sample/character_chunks.h"
#include "sample/character_file.h"

Bytes makeFactTemplate(Editions editions) {
    const PortraitColors colors;
    IffBuilder file;
    for (const IffChunk& chunk : behaviorChunks(BehaviorSet::older)) {
        file.add(chunk);
    }
    file.padTo(templateObject);
    file.add(objectDefinition(std::string(templateRecordName) + " - Sim", sampleGuid));
    file.add(templateNameChunk("Sim"));
    addPictureChunks(file, colors);
    addWebPictureChunk(file, colors);
    file.padTo(templateBodyStrings);
    file.add(templateBodyStringsChunk(adultSlots(), editions));
    file.addMap();
    return file.bytes();
}

bool writeTemplates(const std::filesystem::path& directory) {
    return writeFile(directory / "Template.iff", makeFactTemplate()) &&
           writeFile(directory / "famtemplate", makeFamilyTemplate()) &&
           writeFile(directory / "Template-later.iff", makeFactTemplate(Editions::later)) &&
           writeFile(directory / "famtemplate-later", makeFamilyTemplate(Editions::later));
}
