// The two chunks of "Template.iff" whose texts a save overwrites, and where it expects them.
#ifndef GAMEFILES_CHARACTER_TEMPLATE_H
#define GAMEFILES_CHARACTER_TEMPLATE_H

#include <cstddef>
#include <string>

#include "gamefiles/body_strings_chunk.h"
#include "gamefiles/iff_builder.h"

// Offsets of the chunks in the file. The object definition reaches up to the name.
constexpr std::size_t templateObject = 3976;        // "OBJD"
constexpr std::size_t templateName = 4268;          // "CTSS"
constexpr std::size_t templateBodyStrings = 54016;  // "STR#" 200

// What a save expects of the label of "OBJD"; it overwrites these 9 characters.
constexpr const char* templateRecordName = "user00000";

// "CTSS" with room for a name of 64 bytes. The biography behind it is empty.
IffChunk templateNameChunk(const std::string& name);

// "STR#" 200 of an adult, with room for a text of 1041 bytes.
IffChunk templateBodyStringsChunk(const BodySlots& slots);

#endif
