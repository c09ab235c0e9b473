// The chunks of a Sim's character file that don't matter to reading or saving the Sim: behavior and pictures, with the
// ids, labels and sizes of the game's own files.
#ifndef SAMPLE_CHARACTER_CHUNKS_H
#define SAMPLE_CHARACTER_CHUNKS_H

#include <cstddef>
#include <vector>

#include "gamefiles/iff_builder.h"
#include "sample/bitmap.h"

// Which chunks of behavior a file has. A player's Sim has the older or the newer set: the same number of chunks, in
// other sizes and another order. A townie has the older set and more. A pet has the older set, but names the shared
// behaviors of pets.
enum class BehaviorSet { older, newer, townie, pet };

// Strings, trees, behaviors, slots and the name of the shared behaviors. All of them come before the name.
std::vector<IffChunk> behaviorChunks(BehaviorSet set);

// How many of them come before the object definition.
std::size_t chunksBeforeDefinition(BehaviorSet set);

// Adds five pictures: faces, relationships, thumbnail and two for speech bubbles. With the older set they come before
// the name, with the newer one behind the body strings. `relationshipRows` is the height of the second one in pixels.
// It grows with the number of friends.
constexpr int fewRelationshipRows = 40;
constexpr std::size_t relationshipRowSize = 600;  // bytes
void addPictureChunks(IffBuilder& file, const PortraitColors& colors, int relationshipRows = fewRelationshipRows);

// Adds the picture for the player's web page, the last chunk before the resource map.
void addWebPictureChunk(IffBuilder& file, const PortraitColors& colors);

#endif
