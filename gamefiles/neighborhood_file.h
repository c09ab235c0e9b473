// Whole neighborhood files, the game's lists of neighbours and families, for the samples and for tests. The defaults
// of every struct make a valid file.
#ifndef GAMEFILES_NEIGHBORHOOD_FILE_H
#define GAMEFILES_NEIGHBORHOOD_FILE_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "gamefiles/character_file.h"
#include "gamefiles/iff_builder.h"

struct SampleRelationship {
    std::uint32_t neighborId = 0;
    std::vector<std::int32_t> values = {};
};

// One record of the chunk "NBRS". The program's part of it takes 186 bytes from its first, the marker.
struct SampleNeighbor {
    std::string recordName = "user00001";         // the character file's name without ".iff", at most 9 characters
    std::int32_t recordVersion = 4;               // the second half of the marker
    std::int32_t version = 7;                     // at 22, 4 bytes; the program calls its low byte the version
    std::array<std::int32_t, 29> personValues{};  // 0 to 16 at 30, 17 to 28 at 118; 15 is the body skill
    std::int32_t age = 27;                        // at 142: 9, 18 or 27
    std::int32_t skinTone = 1;                    // at 146: 1 light, 3 medium, 2 dark
    std::int32_t wordA = 0;                       // at 148
    std::int32_t wordB = 0;                       // at 152
    std::int32_t kind = 1;                        // at 156: 0 male, 1 female, 2 to 5 pet
    std::array<std::int32_t, 4> tailWords{};      // at 160
    std::uint8_t gapByte = 0;                     // fills the person data that no field above names
    bool hasPersonData = true;                    // the game's own characters may come without those 160 bytes
    std::int32_t neighborId = 1;
    std::uint32_t guid = sampleGuid;
    std::vector<SampleRelationship> relationships = {};
};

// The chunks "FAMI" and "FAMs" of one family.
struct SampleFamily {
    std::int32_t number = 1;
    std::string name = "Meadows";
    std::int32_t funds = 20000;
    std::vector<std::uint32_t> members = {sampleGuid};
    std::int32_t house = 1;  // 0 for none, -1 for the game's own families
    std::int32_t houseValue = 15000;
    std::int32_t friends = 2;
    std::int32_t flags = 9;                        // 1 lives in a house, 8 made by the player
    std::optional<std::int32_t> memberCount = {};  // another number than that of `members`
    std::int32_t version = 4;
    int trailingNumbers = 4;  // zero numbers of 4 bytes behind the members
    bool hasHistory = false;  // a "FAMh" chunk between the two, as later builds write it
};

struct SampleNeighborhood {
    std::vector<SampleNeighbor> neighbors = {};
    std::vector<SampleFamily> families = {};
    std::vector<IffChunk> before = {};  // in front of "NBRS"
    bool freeRoom = false;              // an "XXXX" chunk behind the families
    std::vector<IffChunk> behind = {};  // behind that
    bool map = true;
    std::size_t fileSize = 0;  // at least; reached by a chunk of texts in front
};

// File offsets in a family's chunks.
struct FamilyOffsets {
    std::size_t familyChunk = 0;  // "FAMI"
    std::size_t record = 0;       // "IMAF"
    std::size_t memberTable = 0;
    std::size_t memberTableEnd = 0;
    std::size_t nameChunk = 0;  // "FAMs"
    std::size_t name = 0;
};

struct NeighborhoodFile {
    Bytes bytes;
    std::vector<std::size_t> neighborOffsets;  // of each record's marker, in the order of `neighbors`
    std::vector<FamilyOffsets> families;       // in the order of `families`
    std::size_t freeRoomOffset = 0;            // 0 when there is none
    std::size_t mapOffset = 0;                 // 0 when there is none
};

NeighborhoodFile makeNeighborhoodFile(const SampleNeighborhood& neighborhood);

// The pieces, for files that a test puts together by itself.
Bytes sampleNeighborRecord(const SampleNeighbor& neighbor);
IffChunk sampleFamilyChunk(const SampleFamily& family);
IffChunk sampleFamilyNameChunk(const SampleFamily& family);

#endif
