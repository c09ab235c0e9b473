// The records of Sims in the bytes of a neighborhood file, of all editions of the game.
#ifndef START_NEIGHBOR_RECORDS_H
#define START_NEIGHBOR_RECORDS_H

#include <cstddef>
#include <string_view>

#include "gamefiles/byte_writer.h"
#include "world/record_format.h"

// All but that of the editions up to 2002.
inline constexpr RecordFormats laterFormats = allFormats.subspan(1);

// Where the next `tag` begins, from `from` on; the file's size if there is none.
std::size_t nextTag(const Bytes& file, std::string_view tag, std::size_t from);

// How many Sims' records of the formats end behind `offset`.
std::size_t countSims(const Bytes& file, RecordFormats formats, std::size_t offset = 0);

#endif
