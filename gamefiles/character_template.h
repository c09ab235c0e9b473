// Where a save patches "Template.iff", and the two chunks whose texts it overwrites. The save has a table of its own
// (save/template_layout.h); a test compares the two.
#ifndef GAMEFILES_CHARACTER_TEMPLATE_H
#define GAMEFILES_CHARACTER_TEMPLATE_H

#include <cstddef>
#include <string>

#include "gamefiles/body_strings_chunk.h"
#include "gamefiles/iff_builder.h"
#include "gamefiles/text_chunk.h"

// Offsets of the chunks in the file. The object definition reaches up to the name.
constexpr std::size_t templateObject = 3976;        // "OBJD"
constexpr std::size_t templateName = 4268;          // "CTSS"
constexpr std::size_t templateBodyStrings = 54016;  // "STR#" 200

// The size of the text behind the word "adult", and where it ends, which is the smallest size of the file.
constexpr std::size_t templateBodyTextSize = 1041;
constexpr std::size_t smallestTemplateSize =
    templateBodyStrings + iffChunkHeaderSize + firstTextOffset + sizeof "adult" - 1 + templateBodyTextSize;

// What a save expects of the label of "OBJD"; it overwrites these 9 characters.
constexpr const char* templateRecordName = "user00000";

// "CTSS" with room for a name of 64 bytes. The biography behind it is empty.
IffChunk templateNameChunk(const std::string& name);

// "STR#" 200 of an adult, with room for a text of 1041 bytes.
IffChunk templateBodyStringsChunk(const BodySlots& slots);

#endif
