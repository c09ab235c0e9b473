// The formats in which editions of the game write a neighbor, and what goes with each.
#ifndef WORLD_RECORD_FORMAT_H
#define WORLD_RECORD_FORMAT_H

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "world/neighborhood_layout.h"
#include "world/program_files.h"

// The fields of `neighborRecord` begin behind the marker, whatever its length.
struct RecordFormat {
    std::string_view marker;              // it opens a Sim's record if "user" follows
    std::optional<std::int16_t> version;  // of every Sim, and a record of mode 0 is no Sim; else the record's own
    bool keepsUnknown;                    // a rewritten record keeps the bytes that have no field
    bool hasAllTexts;                     // a text of 35 body strings is written, and read without a pattern
    const char* characterTemplate;
    const char* familyTemplate;
    std::int32_t familyNameChunk;  // where "FAMs" begins in that template
};

using RecordFormats = std::span<const RecordFormat>;

inline constexpr RecordFormat recordFormats[] = {
    {neighborRecord::marker, std::nullopt, false, false, characterTemplateName, familyTemplateName, 124},
    // Of later editions. They have another word in the marker, and a mode in place of the version.
    {std::string_view("\x01\x00\x00\x00\x0A\x00\x00\x00\x09\x00\x00\x00", 12), 7, true, true,
     laterCharacterTemplateName, laterFamilyTemplateName, 136},
};

// The format of the editions up to 2002, and all formats.
inline constexpr RecordFormats baseFormats(recordFormats, 1);
inline constexpr RecordFormats allFormats(recordFormats);

#endif
