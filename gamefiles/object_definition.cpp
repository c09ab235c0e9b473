#include "gamefiles/object_definition.h"

#include "gamefiles/body_string_text.h"
#include "gamefiles/character_chunks.h"

namespace {

constexpr std::uint16_t definitionId = 128;
constexpr int definitionVersion = 138;
constexpr int personType = 2;

// Offsets in the content. All other fields are 0 for a person.
constexpr std::size_t typeField = 18;
constexpr std::size_t guidField = 28;
constexpr std::size_t bodyStringsIdField = 38;  // the slots' id follows

}  // namespace

IffChunk objectDefinition(const std::string& label, std::uint32_t guid) {
    ByteWriter content;
    content.u32Le(definitionVersion);
    content.fillTo(typeField).u16Le(personType);
    content.fillTo(guidField).u32Le(guid);
    content.fillTo(bodyStringsIdField).u16Le(bodyStringsId).u16Le(characterSlotsId);
    content.fillTo(objectDefinitionSize - iffChunkHeaderSize);
    return {.type = "OBJD", .id = definitionId, .label = label, .content = content.written()};
}
