#include "prepare/source_choice.h"

#include <algorithm>
#include <cstddef>
#include <map>

#include "gamefiles/object_definition.h"
#include "prepare/chunk_role.h"

namespace {

// The bytes of each chunk, sorted.
using Behaviour = std::vector<Bytes>;

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

Behaviour behaviourOf(const TemplateSource& source) {
    Behaviour behaviour = {bytesOf(commonDefinition(withRole(source.chunks, ChunkRole::definition).front()))};
    for (const IffChunk& chunk : withRole(source.chunks, ChunkRole::carried)) {
        behaviour.push_back(bytesOf(chunk));
    }
    std::ranges::sort(behaviour);
    return behaviour;
}

}  // namespace

const TemplateSource* chooseSource(const std::vector<TemplateSource>& sources) {
    std::map<Behaviour, int> counts;
    std::vector<const int*> countOfEach;
    for (const TemplateSource& source : sources) {
        int& count = counts[behaviourOf(source)];
        ++count;
        countOfEach.push_back(&count);
    }
    const auto most = std::ranges::max_element(countOfEach, {}, [](const int* count) { return *count; });
    return most == countOfEach.end() ? nullptr : &sources[static_cast<std::size_t>(most - countOfEach.begin())];
}
