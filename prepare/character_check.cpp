#include "prepare/character_check.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "gamefiles/character_ids.h"
#include "gamefiles/object_definition.h"
#include "gamefiles/text_chunk.h"
#include "platform/byte_order.h"
#include "prepare/tree_calls.h"
#include "world/character_layout.h"

namespace {

using namespace std::string_view_literals;

constexpr int anyId = -1;

struct RequiredChunk {
    const char* type;
    int id;
};

// A file has exactly one of each.
constexpr RequiredChunk requiredChunks[] = {
    {"OBJD", anyId}, {"CTSS", anyId},      {"STR#", bodyStringsId}, {"GLOB", anyId},
    {"SLOT", anyId}, {"BHAV", mainTreeId}, {"BHAV", initTreeId},    {"BHAV", loadTreeId},
};

constexpr std::array<std::uint16_t, 4> playersTrees = {mainTreeId, initTreeId, loadTreeId, initTraitsId};

bool matches(const IffChunk& chunk, const RequiredChunk& required) {
    return chunk.type == required.type && (required.id == anyId || chunk.id == required.id);
}

std::string nameOf(const RequiredChunk& required) {
    return required.type + (required.id == anyId ? "" : " " + std::to_string(required.id));
}

// The content of the first match. There must be one.
std::span<const std::uint8_t> contentOf(const std::vector<IffChunk>& chunks, const RequiredChunk& required) {
    return std::ranges::find_if(chunks, [&](const IffChunk& chunk) { return matches(chunk, required); })->content;
}

std::string refusedCount(const std::vector<IffChunk>& chunks) {
    for (const RequiredChunk& required : requiredChunks) {
        const auto count =
            std::ranges::count_if(chunks, [&](const IffChunk& chunk) { return matches(chunk, required); });
        if (count != 1) return "has " + std::to_string(count) + " chunks " + nameOf(required) + " instead of one";
    }
    return "";
}

// The game's own characters have trees of their own.
std::string refusedBehavior(const std::vector<IffChunk>& chunks) {
    for (const IffChunk& chunk : chunks) {
        const bool isForeignTree =
            chunk.type == "BHAV" && std::ranges::find(playersTrees, chunk.id) == playersTrees.end();
        if (chunk.type == "OBJf" || isForeignTree) {
            return "has the chunk " + chunk.type + " " + std::to_string(chunk.id) + " of the game's own characters";
        }
    }
    return "";
}

std::string refusedDefinition(std::span<const std::uint8_t> definition) {
    constexpr struct {
        std::size_t index;
        std::uint16_t value;
    } words[] = {{definitionWord::type, personType},
                 {definitionWord::mainTree, mainTreeId},
                 {definitionWord::initTree, initTreeId},
                 {definitionWord::loadTree, loadTreeId}};
    if (definition.size() != objectDefinitionSize - iffChunkHeaderSize) {
        return "has an object definition of another size";
    }
    for (const auto& word : words) {
        if (readU16Le(definition.subspan(2 * word.index).first<2>()) != word.value) {
            return "has an object definition without " + std::to_string(word.value) + " in word " +
                   std::to_string(word.index);
        }
    }
    return "";
}

bool namesPersonGlobals(std::span<const std::uint8_t> content) {
    // Below the digits, the first byte is a length.
    constexpr std::uint8_t firstLetter = 48;
    if (content.empty()) return false;
    const std::string_view text(reinterpret_cast<const char*>(content.data()), content.size());
    if (content[0] < firstLetter) return text.substr(1, content[0]) == sharedBehaviorsName;
    return text.substr(0, text.find('\0')) == sharedBehaviorsName;
}

bool beginsWithAdult(std::span<const std::uint8_t> content) {
    constexpr std::string_view word = "adult\0"sv;
    return content.size() >= firstTextOffset + word.size() &&
           std::ranges::equal(content.subspan(firstTextOffset, word.size()), word,
                              [](std::uint8_t byte, char letter) { return byte == static_cast<std::uint8_t>(letter); });
}

bool hasBodyOfLaterEditions(std::span<const std::uint8_t> content) {
    constexpr std::size_t count = characterFile::stringCount - iffChunkHeaderSize;
    return readU16Le(content.subspan(count).first<2>()) == characterFile::allStrings;
}

// Whether the main tree calls none of the trees that all Sims share, so that the Sim would stand still. This is so in
// Sims that were saved from the template of this program's earlier packages.
bool standsStill(const std::vector<IffChunk>& chunks) {
    return std::ranges::any_of(chunks, [](const IffChunk& chunk) {
        return matches(chunk, {"BHAV", mainTreeId}) && !callsTree(chunk.content, firstSharedTree, endOfTrees);
    });
}

}  // namespace

std::string refusalOf(const std::vector<IffChunk>& chunks, Editions editions) {
    if (std::string refusal = refusedCount(chunks); !refusal.empty()) return refusal;
    if (std::string refusal = refusedBehavior(chunks); !refusal.empty()) return refusal;
    if (std::string refusal = refusedDefinition(contentOf(chunks, {"OBJD", anyId})); !refusal.empty()) return refusal;
    if (!namesPersonGlobals(contentOf(chunks, {"GLOB", anyId}))) return "has the behavior of something but a person";
    const auto body = contentOf(chunks, {"STR#", bodyStringsId});
    if (!beginsWithAdult(body)) return "has the body strings of no adult";
    if (editions == Editions::later && !hasBodyOfLaterEditions(body)) return "has the body strings of an older edition";
    if (standsStill(chunks)) return "has a main tree that does nothing";
    return "";
}
