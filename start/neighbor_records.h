// The records of Sims in the bytes of a neighborhood file, of all editions of the game.
#ifndef START_NEIGHBOR_RECORDS_H
#define START_NEIGHBOR_RECORDS_H

#include <cstddef>
#include <string_view>

#include "gamefiles/byte_writer.h"

enum class Edition { base, later };

// Where the next `tag` begins, from `from` on; the file's size if there is none.
std::size_t nextTag(const Bytes& file, std::string_view tag, std::size_t from);

// How many Sims' records of the edition end behind `offset`.
std::size_t countSims(const Bytes& file, Edition edition, std::size_t offset = 0);

#endif
