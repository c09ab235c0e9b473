// One evening with the editor: what was there before it, and where to look for what it left.
#ifndef START_EVENING_H
#define START_EVENING_H

#include <cstdint>
#include <string>
#include <vector>

// Some file systems store times in steps of two seconds.
constexpr std::int64_t coarsestTime = 2;

struct Evening {
    std::string before;  // a copy of the game's neighborhoods from before, laid out like its directory; without backups
    std::string game;    // the game's directory; both with a trailing backslash
    std::int64_t begin;  // when the copy was complete, in seconds since 1970, UTC
    std::vector<std::string> known = {};  // what was said of left-over files (start/left_overs.h) before the evening
};

#endif
