// The two templates that a save patches: of "Template.iff" its places and the two chunks whose texts are overwritten,
// and the whole of "famtemplate". Both come in two forms, one for each form in which editions of the game write their
// neighbors. The save has a table of its own (save/template_layout.h); a test compares the two.
#ifndef GAMEFILES_TEMPLATES_H
#define GAMEFILES_TEMPLATES_H

#include <cstddef>
#include <string>

#include "gamefiles/body_strings_chunk.h"
#include "gamefiles/iff_builder.h"
#include "gamefiles/text_chunk.h"

// The editions that have the form: those up to 2002, or later ones.
enum class Editions { base, later };

// Offsets of the chunks in "Template.iff". The object definition reaches up to the name.
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
IffChunk templateBodyStringsChunk(const BodySlots& slots, Editions editions = Editions::base);

// "famtemplate", the two chunks of a family with one member, without a file around them: 124 bytes of "FAMI", or 136
// for later editions, then 108 bytes of "FAMs" with room for a name of 24 characters. Number, funds, member and name
// are zero.
Bytes makeFamilyTemplate(Editions editions = Editions::base);

#endif
