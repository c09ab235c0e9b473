// What the program knows of a character file: where name, GUID and body strings are in their chunks, and how the
// resource map leads to the chunks. Offsets in a chunk count from the first byte of its tag.
#ifndef WORLD_CHARACTER_LAYOUT_H
#define WORLD_CHARACTER_LAYOUT_H

#include <string_view>

namespace characterFile {
using namespace std::string_view_literals;

// The resource map spells a chunk's tag backwards. The chunk's offset is 8 bytes behind that: 3 bytes, little-endian.
struct ChunkTag {
    std::string_view inFile;
    std::string_view inMap;
};
constexpr ChunkTag nameChunk{"CTSS", "SSTC"};
constexpr ChunkTag objectChunk{"OBJD", "DJBO"};
constexpr int mapTagToOffset = 8;

// Body strings are in one of several text chunks. The map shows which one by its id 200 and the usual flags, right
// behind the chunk's offset; the pattern begins with the offset's top byte, which is zero below 16 MiB. Without a map
// the chunk's label shows it.
constexpr auto bodyStringsInMap = "\x00\xC8\x00\x10"sv;
constexpr int mapPatternToOffset = -3;
constexpr std::string_view bodyStringsTag = "STR#";
constexpr int label = 12;
constexpr auto bodyStringsLabel = "bodystring"sv;

constexpr int guid = 104;         // in the object chunk, 4 bytes
constexpr int displayName = 81;   // in the name chunk, up to a zero byte
constexpr int stringCount = 78;   // in the body strings' chunk, 2 bytes
constexpr int characterTag = 81;  // in the body strings' chunk, 5 letters without terminator
constexpr auto adultTag = "adult"sv;
constexpr auto childTag = "child"sv;
constexpr int characterTagSize = 5;
constexpr int allStrings = 35;  // in each file of later editions
static_assert(adultTag.size() == characterTagSize && childTag.size() == characterTagSize);

// One of these must come somewhere behind the character tag, or the file is of an unknown form. The second ends a text
// that leaves no room for fill bytes.
constexpr auto fillPattern = "\xA3\xA3\xA3\xA3\xA3"sv;
constexpr auto trailerPattern = "\x00\x00\x00\xA3\x00\x00\x00\xA3"sv;
}  // namespace characterFile

#endif
