// Pieces of the sentences that players read.
#ifndef UI_SENTENCE_PARTS_H
#define UI_SENTENCE_PARTS_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// "3 Sims", "1 Sim".
std::string counted(std::size_t count, const std::string& one, const std::string& many);

// "Clover", "Clover and Bramble", "Clover, Bramble and 3 more": of more than 31, the first 30 by name.
std::string listed(const std::vector<std::string>& names);

// "20,000".
std::string withCommas(std::int64_t amount);

#endif
