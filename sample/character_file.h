// Whole character files, each of which holds one Sim. A default SampleCharacter makes a valid file. Tests change the
// fields that a reader looks at and leave out parts.
#ifndef SAMPLE_CHARACTER_FILE_H
#define SAMPLE_CHARACTER_FILE_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "gamefiles/body_strings_chunk.h"
#include "gamefiles/iff_builder.h"
#include "gamefiles/templates.h"
#include "gamefiles/text_chunk.h"
#include "sample/bitmap.h"
#include "sample/bodies.h"
#include "sample/character_chunks.h"

// No byte of it is zero. The file has it as "\x01\x11WT".
constexpr std::uint32_t sampleGuid = 0x54571101;

struct SampleCharacter {
    std::string recordName = "user00001";  // only part of a label here
    std::string name = "Marigold";         // Windows-1252, like all texts
    std::string biography = "Grows prize-winning pumpkins.";
    std::uint32_t guid = sampleGuid;
    std::string tag = "adult";  // 5 characters: "adult" or "child" in a real file
    BodySlots slots = adultSlots();
    BodyEnding ending = BodyEnding::atEntry32;
    std::string lastEntry = missingOutfit;            // of a text with the ending of later editions
    std::size_t bodyTextSize = templateBodyTextSize;  // filled up to this size; a longer text isn't cut
    std::uint8_t bodyFill = textFill;                 // another one leaves a text without a pattern at its end
    std::string bodyLabel = "bodystring";

    BehaviorSet behavior = BehaviorSet::older;
    bool hasObject = true;              // "OBJD"
    bool hasName = true;                // "CTSS"
    bool hasPictures = true;            // 49,000 of 55,000 bytes
    bool freeRoom = false;              // an "XXXX" chunk behind the behaviors
    bool map = true;                    // a resource map
    std::vector<IffChunk> before = {};  // more chunks, in front of all others
    std::size_t fileSize = 0;           // at least this; a taller picture of the relationships makes up for the rest
    PortraitColors colors = {};
};

struct CharacterFile {
    Bytes bytes;
    // Where the chunks begin in the file; 0 for one that was left out.
    std::size_t objectOffset = 0;
    std::size_t nameOffset = 0;
    std::size_t bodyStringsOffset = 0;
    std::size_t freeRoomOffset = 0;
    std::size_t mapOffset = 0;
};

CharacterFile makeCharacterFile(const SampleCharacter& character = {});

#endif
