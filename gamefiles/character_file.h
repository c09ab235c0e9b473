// Whole character files, the game's files of one Sim each, for the samples and for tests. A default SampleCharacter
// makes a valid file; every field that a reader looks at can be set, and a part can be left out.
#ifndef GAMEFILES_CHARACTER_FILE_H
#define GAMEFILES_CHARACTER_FILE_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "gamefiles/bitmap.h"
#include "gamefiles/bodies.h"
#include "gamefiles/body_string_text.h"
#include "gamefiles/iff_builder.h"

// The GUID of every default sample Sim. No byte of it is zero, and its 4 bytes in a file read "\x01\x11WT".
constexpr std::uint32_t sampleGuid = 0x54571101;

struct SampleCharacter {
    std::string recordName = "user00001";  // only a label here
    std::string name = "Marigold";
    std::string biography = "Grows prize-winning pumpkins.";
    std::uint32_t guid = sampleGuid;
    std::string tag = "adult";  // 5 characters: "adult" or "child" in a real file
    BodySlots slots = adultSlots();
    BodyEnding ending = BodyEnding::atEntry32;
    std::size_t bodyTextSize = 1041;     // with the A3 fill; a text longer than this gets none
    std::optional<Bytes> bodyText = {};  // ready-made, in place of the three fields above; no fill is added
    std::string bodyLabel = "bodystring";

    bool hasObject = true;       // "OBJD"
    bool hasName = true;         // "CTSS"
    bool hasBodyStrings = true;  // "STR#" with id 200
    bool hasPictures = true;     // without them a file takes some 6,000 bytes, with them 55,000
    bool freeRoom = false;       // an "XXXX" chunk behind the behaviours
    bool map = true;
    std::vector<IffChunk> before = {};  // further chunks, in front of all others
    std::size_t fileSize = 0;           // at least; reached by a taller picture of the relationships
    PortraitColors colors = {};
};

struct CharacterFile {
    Bytes bytes;
    // File offsets of the chunks' first letters; 0 for a chunk that was left out.
    std::size_t objectOffset = 0;
    std::size_t nameOffset = 0;
    std::size_t bodyStringsOffset = 0;
    std::size_t freeRoomOffset = 0;
    std::size_t mapOffset = 0;
};

CharacterFile makeCharacterFile(const SampleCharacter& character = {});

// The chunk with the body strings: the word at 81, the text at 86 from its first letter.
IffChunk sampleBodyStringsChunk(const SampleCharacter& character);

#endif
