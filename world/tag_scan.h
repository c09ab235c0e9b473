// What every reader of the game's files rests on: the scan for a tag, and the one field of the header.
#ifndef WORLD_TAG_SCAN_H
#define WORLD_TAG_SCAN_H

#include <cstdint>
#include <string_view>

#include "world/stream.h"

constexpr std::int32_t tagNotFound = -4;

// Looks for `tag` (at most 24 bytes, zero bytes included, one at least not zero) from the cursor to `fileSize`, the
// size that the file had when its owner noted it. Returns the tag's file offset plus one, or -4. A hit leaves the
// cursor where it was; a miss leaves it at the end of the file, and the callers count on both. With the end-of-file
// flag up the cursor stays.
//
// The plus one serves the callers: the bytes behind a 4-byte tag are reached by a seek to the result and a skip of 3.
std::int32_t findTag(StreamView stream, std::string_view tag, std::int32_t fileSize);

// Compares the bytes at the cursor with `tag`: 1 with the cursor where it was, or 0 with the cursor on the first byte
// that differs.
int matchTagHere(StreamView stream, std::string_view tag);

// Where the file's resource map lies, read from the header at its front; 0 for a file without a map, and for one that
// is too short to say, which also raises the view's flags. Leaves the cursor behind the header.
std::int32_t readMapOffset(StreamView& stream);

#endif
