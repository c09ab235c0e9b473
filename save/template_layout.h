// Where a save patches its two templates. Each field has a fixed place and a fixed width, so that chunk lengths and the
// resource map stay right.
#ifndef SAVE_TEMPLATE_LAYOUT_H
#define SAVE_TEMPLATE_LAYOUT_H

#include <cstdint>

#include "world/character_layout.h"
#include "world/neighborhood_layout.h"
#include "world/record_format.h"

// "Template.iff", from which every new character file is made: offsets in the file.
namespace characterTemplate {
constexpr std::int32_t objectChunk = 3976;
constexpr std::int32_t nameChunk = 4268;
constexpr std::int32_t bodyStringsChunk = 54016;

constexpr std::int32_t recordName = objectChunk + characterFile::label;  // 9 characters
constexpr std::int32_t guid = objectChunk + characterFile::guid;         // 4 bytes
constexpr std::int32_t displayName = nameChunk + characterFile::displayName;
constexpr std::int32_t displayNameSize = 64;  // the name and zero bytes
constexpr std::int32_t characterTag = bodyStringsChunk + characterFile::characterTag;
constexpr std::int32_t bodyText = characterTag + characterFile::characterTagSize;
constexpr std::int32_t bodyTextSize = 1041;
constexpr std::int32_t smallestSize = bodyText + bodyTextSize;

static_assert(recordName == 3988 && guid == 4080 && displayName == 4349);
static_assert(characterTag == 54097 && bodyText == 54102);
}  // namespace characterTemplate

// The templates of families, the record of a new family of one member: offsets in the record. The family's number is in
// the headers of both chunks and in the record proper.
namespace familyTemplate {
constexpr std::int32_t chunkNumber = 9;  // in the header of either chunk; 2 bytes, like the other number
constexpr std::int32_t record = 84;      // "IMAF"
constexpr std::int32_t number = record + familyRecord::number;
constexpr std::int32_t funds = record + familyRecord::funds;         // its low 2 bytes
constexpr std::int32_t member = record + familyRecord::memberTable;  // 4 bytes
constexpr std::int32_t nameChunkSize = 108;  // of "FAMs", which is where its format says, up to the end

constexpr std::int32_t sizeOf(const RecordFormat& format) {
    return format.familyNameChunk + nameChunkSize;
}

// The name ends with 00 00 A3. If it is shorter than 21 characters, zeros make up the difference.
constexpr std::int32_t nameEndSize = 3;
constexpr std::int32_t nameRoom = 21;
constexpr std::int32_t longestName = nameChunkSize - familyName::name - nameEndSize;

static_assert(number == 92 && funds == 96 && member == 116 && longestName == 24);
static_assert(sizeOf(recordFormats[0]) == 232 && sizeOf(recordFormats[1]) == 244);
}  // namespace familyTemplate

#endif
