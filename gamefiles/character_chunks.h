// The chunks that a Sim's character file holds beside its name and body strings: the Sim's behaviour, its object
// definition and its pictures, with the ids, labels and sizes that the game's own files have.
#ifndef GAMEFILES_CHARACTER_CHUNKS_H
#define GAMEFILES_CHARACTER_CHUNKS_H

#include <cstddef>
#include <cstdint>
#include <string>

#include "gamefiles/bitmap.h"
#include "gamefiles/iff_builder.h"

constexpr std::uint16_t characterObjectId = 128;
constexpr std::uint16_t characterNameId = 2000;

// Size in bytes of the object definition's chunk, its header included.
constexpr std::size_t objectChunkSize = 292;

// Strings, trees, behaviours, slots and the name of the shared behaviours: all that stands before the object
// definition.
void addBehaviourChunks(IffBuilder& file);

// The object definition of a person. The GUID stands 104 bytes behind the chunk's first letter.
IffChunk objectChunk(const std::string& label, std::uint32_t guid);

// The five pictures that stand before the name: faces, relationships, thumbnail and two of the speech bubbles.
// `relationshipRows` is the height of the second in pixels, 300 bytes each; a Sim with many friends has a tall one.
constexpr int fewRelationshipRows = 80;
void addPictureChunks(IffBuilder& file, const PortraitColors& colors, int relationshipRows = fewRelationshipRows);

// The picture for the player's web page, the last chunk before the resource map.
IffChunk webPictureChunk(const PortraitColors& colors);

#endif
