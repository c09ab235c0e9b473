// What the program knows of a character file: where the name, the GUID and the body strings stand in their chunks, and
// how the resource map leads there. Offsets in a chunk count from the first byte of its tag.
#ifndef WORLD_CHARACTER_LAYOUT_H
#define WORLD_CHARACTER_LAYOUT_H

#include <string_view>

namespace characterFile {
using namespace std::string_view_literals;

// A chunk by its tag, and by its tag in the resource map, which spells it backwards. The chunk's offset stands 8 bytes
// behind that: 3 bytes, little-endian.
struct ChunkTag {
    std::string_view inFile;
    std::string_view inMap;
};
constexpr ChunkTag nameChunk{"CTSS", "SSTC"};
constexpr ChunkTag objectChunk{"OBJD", "DJBO"};
constexpr int mapTagToOffset = 8;

// The body strings are told from the other text chunks by their id 200 and the usual flags: in the map these follow the
// three low bytes of the chunk's offset, of which a file shorter than 16 MiB has no fourth; without a map by their
// label.
constexpr auto bodyStringsInMap = "\x00\xC8\x00\x10"sv;
constexpr int mapPatternToOffset = -3;
constexpr std::string_view bodyStringsTag = "STR#";
constexpr int label = 12;
constexpr auto bodyStringsLabel = "bodystring"sv;

constexpr int guid = 104;         // in the object chunk, 4 bytes
constexpr int displayName = 81;   // in the name chunk, up to a zero byte
constexpr int characterTag = 81;  // in the body strings' chunk, 5 letters without terminator
constexpr auto adultTag = "adult"sv;
constexpr auto childTag = "child"sv;
constexpr int characterTagSize = 5;
static_assert(adultTag.size() == characterTagSize && childTag.size() == characterTagSize);

// One of these must follow the character tag somewhere, or the file's form is unknown. The second closes a text that
// fills its room to the last byte.
constexpr auto fillPattern = "\xA3\xA3\xA3\xA3\xA3"sv;
constexpr auto trailerPattern = "\x00\x00\x00\xA3\x00\x00\x00\xA3"sv;
}  // namespace characterFile

#endif
