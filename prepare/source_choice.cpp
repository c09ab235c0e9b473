#include "prepare/source_choice.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "gamefiles/character_ids.h"
#include "gamefiles/object_definition.h"
#include "prepare/template_maker.h"
#include "prepare/tree_calls.h"

namespace {

Bytes bytesOf(const IffChunk& chunk) {
    return ByteWriter()
        .text(chunk.type)
        .u16Be(chunk.id)
        .u16Be(chunk.flags)
        .text(chunk.label)
        .u8(0)
        .bytes(chunk.content)
        .written();
}

// Without what differs from Sim to Sim.
IffChunk commonDefinition(IffChunk definition) {
    definition.label.clear();
    for (const std::size_t guid : {definitionWord::guid, definitionWord::kindGuid}) {
        std::ranges::fill_n(definition.content.begin() + static_cast<std::ptrdiff_t>(2 * guid), 4, 0);
    }
    return definition;
}

std::vector<Bytes> behaviorOf(const std::vector<IffChunk>& chunks) {
    std::vector<Bytes> behavior = {bytesOf(commonDefinition(withRole(chunks, ChunkRole::definition).front()))};
    for (const IffChunk& chunk : withRole(chunks, ChunkRole::carried)) {
        behavior.push_back(bytesOf(chunk));
    }
    std::ranges::sort(behavior);
    return behavior;
}

// The load tree of a shipped family's file calls one of its own, which was for an older edition of the game.
bool callsOwnTreeOnLoad(const std::vector<IffChunk>& chunks) {
    return std::ranges::any_of(chunks, [](const IffChunk& chunk) {
        return chunk.type == "BHAV" && chunk.id == loadTreeId &&
               callsTree(chunk.content, firstOwnTree, firstSharedTree);
    });
}

}  // namespace

void SourceChoice::add(const std::string& path, const std::vector<IffChunk>& chunks) {
    std::vector<Bytes> behavior = behaviorOf(chunks);
    auto group = std::ranges::find(groups_, behavior, &Group::behavior);
    if (group == groups_.end()) group = groups_.insert(group, {std::move(behavior), path, callsOwnTreeOnLoad(chunks)});
    ++group->count;
}

std::string SourceChoice::best() const {
    const auto rank = [](const Group& group) { return std::pair(!group.callsOwnTreeOnLoad, group.count); };
    const auto most = std::ranges::max_element(groups_, {}, rank);
    return most == groups_.end() ? "" : most->path;
}
