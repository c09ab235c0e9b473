// Content of the game's text chunks: "STR#", "CTSS" and "FAMs".
#ifndef GAMEFILES_TEXT_CHUNK_H
#define GAMEFILES_TEXT_CHUNK_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "gamefiles/byte_writer.h"

// The byte with which the game's own tools fill what strings leave over.
constexpr std::uint8_t textFill = 0xA3;

// FD FF, the number of strings in 2 bytes, then for each string its language (1), the text, a zero byte and the zero
// byte of its empty comment. Texts are Windows-1252. Fill bytes follow up to `size` bytes in all; 0 asks for none.
// In a chunk the first text stands 81 bytes behind the chunk's first letter.
Bytes textChunkContent(const std::vector<std::string>& texts, std::size_t size = 0);

#endif
