// The chunks of a Sim's character file that the program doesn't look at: behaviour and pictures, with the ids, labels
// and sizes of the game's own files.
#ifndef GAMEFILES_CHARACTER_CHUNKS_H
#define GAMEFILES_CHARACTER_CHUNKS_H

#include <cstddef>
#include <cstdint>

#include "gamefiles/bitmap.h"
#include "gamefiles/iff_builder.h"

constexpr std::uint16_t characterSlotsId = 128;

// Adds strings, trees, behaviours, slots and the name of the shared behaviours: all that comes before the object
// definition.
void addBehaviourChunks(IffBuilder& file);

// Adds the five pictures that come before the name: faces, relationships, thumbnail and two for speech bubbles.
// `relationshipRows` is the height of the second one in pixels. It grows with the number of friends.
constexpr int fewRelationshipRows = 80;
constexpr std::size_t relationshipRowSize = 300;  // bytes
void addPictureChunks(IffBuilder& file, const PortraitColors& colors, int relationshipRows = fewRelationshipRows);

// Adds the picture for the player's web page, the last chunk before the resource map.
void addWebPictureChunk(IffBuilder& file, const PortraitColors& colors);

#endif
