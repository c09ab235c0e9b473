#include "gamefiles/object_definition.h"

#include <array>

#include "gamefiles/character_ids.h"

namespace {

constexpr std::uint16_t definitionId = 128;

struct WordRow {
    std::size_t index;
    std::uint16_t value;
};

// The words of a player's Sim that aren't 0, without the GUID. Those without a name are as in the game's own files.
constexpr WordRow personWords[] = {
    {0, 138},  // version
    {2, 48},   // stack size of the trees
    {4, 1},
    {definitionWord::mainTree, mainTreeId},
    {6, 2},
    {7, 129},
    {8, 128},
    {definitionWord::type, personType},
    {13, 128},
    {definitionWord::bodyStringsId, bodyStringsId},
    {definitionWord::slotsId, characterSlotsId},
    {23, 202},
    {definitionWord::nameId, characterNameId},
    {definitionWord::initTree, initTreeId},
    {definitionWord::loadTree, loadTreeId},
    {49, 1},
    {52, 8210},  // cleanup tree, one of the shared ones
    {68, 1},
};

}  // namespace

IffChunk objectDefinition(const std::string& label, std::uint32_t guid) {
    std::array<std::uint16_t, (objectDefinitionSize - iffChunkHeaderSize) / 2> words{};
    for (const WordRow& row : personWords) {
        words[row.index] = row.value;
    }
    words[definitionWord::guid] = static_cast<std::uint16_t>(guid & 0xFFFF);
    words[definitionWord::guid + 1] = static_cast<std::uint16_t>(guid >> 16);
    ByteWriter content;
    for (const std::uint16_t word : words) {
        content.u16Le(word);
    }
    return {.type = "OBJD", .id = definitionId, .label = label, .content = content.written()};
}
