#include "prepare/template_maker.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>
#include <string_view>

#include "gamefiles/character_ids.h"
#include "gamefiles/templates.h"
#include "platform/byte_order.h"
#include "prepare/neutral_picture.h"
#include "world/character_layout.h"

namespace {

ChunkRole roleOf(const IffChunk& chunk) {
    if (chunk.type == "XXXX" || chunk.type == "rsmp") return ChunkRole::dropped;
    if (chunk.type == "OBJD") return ChunkRole::definition;
    if (chunk.type == "CTSS") return ChunkRole::name;
    if (chunk.type == "STR#" && chunk.id == bodyStringsId) return ChunkRole::bodyStrings;
    return chunk.type == "BMP_" ? ChunkRole::picture : ChunkRole::carried;
}

// Free room is a chunk itself, so a gap that is smaller than a chunk's header can't be filled.
bool fits(std::size_t size, std::size_t room) {
    return size == room || (size < room && room - size >= iffChunkHeaderSize);
}

// Adds the chunks that fit in front of `end` and fills the rest of the room. Appends the others to `leftOver`.
void fillRoom(IffBuilder& file, std::size_t end, const std::vector<IffChunk>& chunks, std::vector<IffChunk>& leftOver) {
    for (const IffChunk& chunk : chunks) {
        if (fits(iffChunkHeaderSize + chunk.content.size(), end - file.size())) {
            file.add(chunk);
        } else {
            leftOver.push_back(chunk);
        }
    }
    file.padTo(end);
}

// A save overwrites the label in the chunk only, so the map has none.
void addDefinition(IffBuilder& file, IffChunk definition) {
    definition.label = templateRecordName;
    file.add(definition, "");
}

std::vector<IffChunk> neutralPictures(const std::vector<IffChunk>& source) {
    std::vector<IffChunk> pictures = withRole(source, ChunkRole::picture);
    for (IffChunk& picture : pictures) {
        picture.content = neutralPicture(picture.content);
    }
    return pictures;
}

// Whether a search of the map for the tag finds the chunk's offset behind it.
bool leadsTo(std::size_t chunk, characterFile::ChunkTag tag, std::span<const std::uint8_t> map) {
    const auto hit = std::search(map.begin(), map.end(), tag.inMap.begin(), tag.inMap.end()) - map.begin();
    return readU24Le(map.subspan(static_cast<std::size_t>(hit + characterFile::mapTagToOffset)).first<3>()) == chunk;
}

// The program doesn't walk the map but searches it, from the offset in the file's header, of which it reads 3 bytes. A
// label may contain a tag. The entry of the body strings can't be missed: it comes first of all.
bool mapLeadsToChunks(const Bytes& file, std::size_t mapOffset) {
    constexpr std::size_t mapOffsetLimit = 1U << 24;
    if (mapOffset >= mapOffsetLimit) return false;
    const auto map = std::span(file).subspan(mapOffset);
    return leadsTo(templateObject, characterFile::objectChunk, map) &&
           leadsTo(templateName, characterFile::nameChunk, map);
}

}  // namespace

std::vector<IffChunk> withRole(const std::vector<IffChunk>& chunks, ChunkRole role) {
    std::vector<IffChunk> found;
    std::ranges::copy_if(chunks, std::back_inserter(found),
                         [role](const IffChunk& chunk) { return roleOf(chunk) == role; });
    return found;
}

Bytes makeTemplate(const std::vector<IffChunk>& source, Editions editions) {
    IffBuilder file;
    std::vector<IffChunk> leftOver;
    fillRoom(file, templateObject, withRole(source, ChunkRole::carried), leftOver);
    addDefinition(file, withRole(source, ChunkRole::definition).front());
    file.add(templateNameChunk(""));
    fillRoom(file, templateBodyStrings, neutralPictures(source), leftOver);
    file.add(templateBodyStringsChunk({}, editions));
    for (const IffChunk& chunk : leftOver) {
        file.add(chunk);
    }
    const std::size_t mapOffset = file.addMap();
    return mapLeadsToChunks(file.bytes(), mapOffset) ? file.bytes() : Bytes();
}
