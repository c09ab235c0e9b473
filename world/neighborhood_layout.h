// The layout of the pieces of "neighborhood.iff" that the program reads and patches, once for reader and writer.
// Numbers are little-endian; offsets count from the first byte of the named piece.
#ifndef WORLD_NEIGHBORHOOD_LAYOUT_H
#define WORLD_NEIGHBORHOOD_LAYOUT_H

#include <array>
#include <cstdint>
#include <string_view>

// Every IFF file of the game has at its head, behind the header's text and the offset's unused top byte, where its
// resource map lies: 24 bits, big-endian, 0 for a file without one.
namespace iffHeader {
constexpr std::int32_t mapOffset = 61;
constexpr std::int32_t mapOffsetSize = 3;
}  // namespace iffHeader

// Neighbor record, 186 bytes, from its marker. The marker also opens the records of the game's own characters
// ("robot"): only one followed by "user" is a Sim's. Bytes between the fields are skipped, and written as zero.
namespace neighborRecord {
using namespace std::string_view_literals;

constexpr auto marker = "\x01\x00\x00\x00\x04\x00\x00\x00"sv;
constexpr auto namePrefix = "user"sv;

constexpr int name = 8;  // 9 characters ("user00042"), no terminator
constexpr int nameSize = 9;
constexpr int version = 22;          // 1 byte, signed
constexpr int firstValues = 30;      // person values 0 to 16, 2 bytes each
constexpr int firstValueCount = 17;  //
constexpr int lastValues = 118;      // person values 17 to 28, 2 bytes each
constexpr int age = 142;             // 2 bytes: 9 child, 18 teen, 27 adult
constexpr int skinTone = 146;        // 2 bytes: 1 light, 3 medium, else dark
constexpr int wordA = 148;           // 2 bytes, 0 in most records
constexpr int wordB = 152;           // 2 bytes
constexpr int kind = 156;            // 2 bytes: 0 male, 1 female, 2 to 5 pet
constexpr int kindRoom = 4;          // the kind and 2 bytes behind it
constexpr int tailWords = 160;       // 4 words
constexpr int tailWordCount = 4;
constexpr int size = 186;
using Bytes = std::array<std::uint8_t, size>;

constexpr int personValueCount = 29;
static_assert(name == marker.size());
static_assert(kind + kindRoom == tailWords);

static_assert(lastValues + 2 * (personValueCount - firstValueCount) == age);

constexpr int highestPetKind = 5;
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

// Name of a family, from "FAMs": pairs of bytes up to a pair that begins with zero. A zero in second place closes a
// name of odd length, but the pair behind it must still begin with a zero.
namespace familyName {
constexpr std::string_view chunkTag = "FAMs";
constexpr int name = 81;
constexpr std::string_view unlisted = "Default";
}  // namespace familyName

// Free room, a chunk that the game deleted. New families take the place of the first one and of all behind it.
constexpr std::string_view freeChunkTag = "XXXX";

#endif
