// The scan for a tag, by which everything in the game's files is found, and the one field of their header.
#ifndef WORLD_TAG_SCAN_H
#define WORLD_TAG_SCAN_H

#include <cstdint>
#include <string_view>

#include "world/stream.h"

constexpr std::int32_t tagNotFound = -4;

// Looks for `tag` (up to 24 bytes, not all of them zero) from the cursor to `fileSize`, which is the file's size as it
// was noted earlier. Returns the tag's file offset plus one, or -4 if there is none. A hit leaves the cursor where it
// was; a miss leaves it at the end of the file, and the callers count on both. With the end-of-file flag up, the result
// is -4 and the cursor stays.
std::int32_t findTag(StreamView stream, std::string_view tag, std::int32_t fileSize);

// Compares the bytes at the cursor with `tag`. Returns 1 and leaves the cursor where it was, or returns 0 and leaves it
// on the first byte that differs.
int matchTagHere(StreamView stream, std::string_view tag);

// Reads from the header where the resource map begins; 0 for a file without a map. A file that is too short for a
// header also gives 0, and raises the view's flags. Leaves the cursor behind the header.
std::int32_t readMapOffset(StreamView& stream);

#endif
