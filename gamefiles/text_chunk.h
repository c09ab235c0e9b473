// Contents of the game's text chunks: "STR#", "CTSS" and "FAMs".
#ifndef GAMEFILES_TEXT_CHUNK_H
#define GAMEFILES_TEXT_CHUNK_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "gamefiles/byte_writer.h"

// The byte that the game's own tools write into unused room behind the texts.
constexpr std::uint8_t textFill = 0xA3;

// The language byte in front of each text.
constexpr int usEnglish = 1;

// Where the first text begins, from the start of the content.
constexpr std::size_t firstTextOffset = 5;

// The first 4 bytes: FD FF and the number of texts. The language of the first text comes next.
ByteWriter beginTextChunk(std::size_t textCount);

// A whole content. Each text is followed by a zero byte and by its empty comment, which is another zero byte. Texts are
// Windows-1252. Fill bytes follow up to `size` bytes; a longer content has none.
Bytes textChunkContent(const std::vector<std::string>& texts, std::size_t size = 0);

#endif
