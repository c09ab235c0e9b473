// Whole neighborhood files, each of which lists the neighbors and the families of a neighborhood. A default struct
// makes a valid part of a file.
#ifndef SAMPLE_NEIGHBORHOOD_FILE_H
#define SAMPLE_NEIGHBORHOOD_FILE_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "gamefiles/iff_builder.h"
#include "sample/character_file.h"

struct SampleRelationship {
    std::uint32_t neighborId = 0;
    std::vector<std::int32_t> values = {};
};

// One record of the chunk "NBRS". Offsets count from the record's marker, or 4 bytes behind it in later editions, whose
// marker is that much longer. The program reads and writes the 186 bytes from there.
struct SampleNeighbor {
    bool later = false;
    std::string recordName = "user00001";         // at 8: at most 9 characters, the character file without ".iff"
    std::int32_t version = 7;                     // at 22, 4 bytes: in later editions the mode, 5 or 9
    std::array<std::int32_t, 29> personValues{};  // 0 to 16 at 30, 17 to 28 at 118; 15 is the body skill
    std::int32_t age = 27;                        // at 142: 9, 18 or 27
    std::int32_t skinTone = 1;                    // at 146: 1 light, 2 dark, 3 medium
    std::int32_t wordA = 0;                       // at 148
    std::int32_t wordB = 0;                       // at 152
    std::int32_t kind = 1;                        // at 156: 0 male, 1 female, 2 to 5 pet
    std::array<std::int32_t, 4> tailWords{};      // at 160
    std::uint8_t gapByte = 0;                     // the bytes of the person data that have no field above
    bool hasPersonData = true;                    // the 160 bytes at 26, 512 in later editions; some lack them
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
    std::optional<std::int32_t> memberCount = {};  // if it isn't the size of `members`
    std::int32_t version = 4;
    int trailingNumbers = 4;  // zeros of 4 bytes behind the members
    bool hasHistory = false;  // a "FAMh" chunk between the two, which later versions of the game write
};

struct SampleNeighborhood {
    std::vector<SampleNeighbor> neighbors = {};
    std::vector<SampleFamily> families = {};
    std::vector<IffChunk> before = {};  // in front of "NBRS"
    bool freeRoom = false;              // an "XXXX" chunk behind the families
    std::vector<IffChunk> behind = {};  // behind the free room
    bool map = true;                    // a resource map
    std::size_t fileSize = 0;           // at least this; a chunk of texts in front makes up for the rest
};

// Offsets in the file.
struct FamilyOffsets {
    std::size_t record = 0;  // of "IMAF"
    std::size_t memberTable = 0;
    std::size_t memberTableEnd = 0;
    std::size_t name = 0;
};

struct NeighborhoodFile {
    Bytes bytes;
    std::vector<std::size_t> neighborOffsets;  // of the records' markers, in the order of `neighbors`
    std::vector<FamilyOffsets> families;       // in the order of `families`
    std::size_t freeRoomOffset = 0;            // 0 if there is none
    std::size_t mapOffset = 0;                 // 0 if there is none
};

NeighborhoodFile makeNeighborhoodFile(const SampleNeighborhood& neighborhood);

// Single records and chunks, for files that a test builds itself.
Bytes sampleNeighborRecord(const SampleNeighbor& neighbor);
IffChunk sampleFamilyChunk(const SampleFamily& family);
IffChunk sampleFamilyNameChunk(const SampleFamily& family);

#endif
