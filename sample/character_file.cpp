#include "sample/character_file.h"

#include <algorithm>
#include <span>

#include "gamefiles/character_ids.h"
#include "gamefiles/object_definition.h"
#include "sample/character_chunks.h"

namespace {

constexpr std::size_t freeRoomSize = 208;

void addAll(IffBuilder& file, std::span<const IffChunk> chunks) {
    for (const IffChunk& chunk : chunks) {
        file.add(chunk);
    }
}

CharacterFile buildWith(const SampleCharacter& character, int relationshipRows) {
    CharacterFile built;
    IffBuilder file;
    addAll(file, character.before);
    const std::vector<IffChunk> behavior = behaviorChunks(character.behavior);
    const std::size_t before = chunksBeforeDefinition(character.behavior);
    addAll(file, std::span(behavior).first(before));
    if (character.freeRoom) built.freeRoomOffset = file.addFreeRoom(freeRoomSize);
    if (character.hasObject) {
        built.objectOffset = file.add(objectDefinition(character.recordName + " - " + character.name, character.guid));
    }
    addAll(file, std::span(behavior).subspan(before));
    // The newer versions of the game put all pictures last.
    const bool hasPicturesFirst = character.behavior != BehaviorSet::newer;
    if (character.hasPictures && hasPicturesFirst) addPictureChunks(file, character.colors, relationshipRows);
    if (character.hasName) {
        built.nameOffset = file.add({.type = "CTSS",
                                     .id = characterNameId,
                                     .content = textChunkContent({character.name, character.biography})});
    }
    IffChunk body = bodyStringsChunk(character.tag, character.slots, character.ending, character.bodyTextSize,
                                     character.bodyLabel, character.lastEntry);
    std::ranges::replace(body.content, textFill, character.bodyFill);
    built.bodyStringsOffset = file.add(body);
    if (character.hasPictures && !hasPicturesFirst) addPictureChunks(file, character.colors, relationshipRows);
    if (character.hasPictures) addWebPictureChunk(file, character.colors);
    if (character.map) built.mapOffset = file.addMap();
    built.bytes = file.bytes();
    return built;
}

}  // namespace

CharacterFile makeCharacterFile(const SampleCharacter& character) {
    CharacterFile file = buildWith(character, fewRelationshipRows);
    if (!character.hasPictures || file.bytes.size() >= character.fileSize) return file;
    const std::size_t missing = character.fileSize - file.bytes.size();
    const std::size_t rows = (missing + relationshipRowSize - 1) / relationshipRowSize;
    return buildWith(character, fewRelationshipRows + static_cast<int>(rows));
}
