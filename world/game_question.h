// The small window that lists the games that were found, or says that there is none.
#ifndef WORLD_GAME_QUESTION_H
#define WORLD_GAME_QUESTION_H

#include <string>
#include <vector>

struct GameAnswer {
    enum class Kind { game, elsewhere, cancelled, noDisplay };

    Kind kind = Kind::cancelled;
    std::size_t game = 0;  // index of the picked entry
};

// Shows `text`, of several lines, above a list of `entries`, the first one picked, with buttons to open that game, to
// choose another directory, and to cancel. Without entries there is no list and nothing to open. Waits for the answer.
GameAnswer askForGame(const std::string& text, const std::vector<std::string>& entries);

#endif
