// The layout of the pieces of "neighborhood.iff" that the program reads and patches. Numbers are little-endian; offsets
// count from the first byte of the piece.
#ifndef WORLD_NEIGHBORHOOD_LAYOUT_H
#define WORLD_NEIGHBORHOOD_LAYOUT_H

#include <array>
#include <cstdint>
#include <string_view>

// The header of every IFF file of the game ends with the offset of the resource map: 24 bits, big-endian, 0 for a file
// without a map. The byte in front of it, the top byte of 32 bits, isn't used.
namespace iffHeader {
constexpr std::int32_t mapOffset = 61;
constexpr std::int32_t mapOffsetSize = 3;
}  // namespace iffHeader

// Neighbor record, 186 bytes from its marker. The marker also opens the records of the game's own characters ("robot");
// only one followed by "user" is a Sim's. Bytes between the fields are unknown: not read, and written as zero. Later
// editions of the game have a longer marker (world/record_format.h) and the same fields; there, offsets count from 8
// bytes in front of the name.
namespace neighborRecord {
using namespace std::string_view_literals;

constexpr auto marker = "\x01\x00\x00\x00\x04\x00\x00\x00"sv;
constexpr auto namePrefix = "user"sv;

constexpr int name = 8;  // 9 characters ("user00042"), no terminator
constexpr int nameSize = 9;
constexpr int version = 22;      // 1 byte, signed; the mode in later editions: 5 or 9, 0 without person data
constexpr int firstValues = 30;  // person values 0 to 16, 2 bytes each
constexpr int firstValueCount = 17;
constexpr int lastValues = 118;  // person values 17 to 28, 2 bytes each
constexpr int age = 142;         // 2 bytes: 9 child, 18 teen, 27 adult
constexpr int skinTone = 146;    // 2 bytes: 1 light, 3 medium, else dark
constexpr int wordA = 148;       // 2 bytes, 0 in most records
constexpr int wordB = 152;       // 2 bytes
constexpr int kind = 156;        // 2 bytes: 0 male, 1 female, 2 to 5 pet
constexpr int kindRoom = 4;      // with the 2 bytes behind it
constexpr int tailWords = 160;   // 4 words
constexpr int tailWordCount = 4;
constexpr int size = 186;
using Bytes = std::array<std::uint8_t, size>;

constexpr int personValueCount = 29;
constexpr int highestPetKind = 5;

static_assert(name == marker.size());
static_assert(lastValues + 2 * (personValueCount - firstValueCount) == age && kind + kindRoom == tailWords);
}  // namespace neighborRecord

// Family record, from "IMAF" inside the chunk "FAMI".
namespace familyRecord {
constexpr std::string_view chunkTag = "FAMI";
constexpr std::string_view recordTag = "IMAF";
constexpr int number = 8;  // 4 bytes, of which the low 2 count, signed
constexpr int funds = 12;  // 4 bytes, signed
constexpr int words = 16;  // 6 words: house, value of the house, friends, flags and what else the game keeps there
constexpr int wordCount = 6;
constexpr int memberCount = 28;  // 2 bytes, signed
constexpr int tailWord = 30;     // 2 bytes
constexpr int memberTable = 32;  // one GUID for each member
constexpr int guidSize = 4;
constexpr int highestMemberCount = 8;
using Bytes = std::array<std::uint8_t, memberTable + highestMemberCount * guidSize>;

static_assert(funds + 4 == words && words + 2 * wordCount == memberCount && memberCount + 4 == memberTable);
}  // namespace familyRecord

// A family's name, from "FAMs". It is stored in pairs of bytes and ends before a pair that begins with zero. A zero in
// second place pads a name of odd length and doesn't end it.
namespace familyName {
constexpr std::string_view chunkTag = "FAMs";
constexpr int name = 81;
constexpr std::string_view unlisted = "Default";
}  // namespace familyName

// A chunk that the game has freed. New families replace the first one and everything behind it.
constexpr std::string_view freeChunkTag = "XXXX";

#endif
