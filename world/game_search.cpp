#include "world/game_search.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "platform/directory_choice.h"
#include "platform/files.h"
#include "platform/last_written.h"
#include "platform/path_text.h"
#include "platform/win32.h"
#include "platform/wine_prefixes.h"
#include "ui/words.h"
#include "world/game_check.h"
#include "world/game_question.h"
#include "world/program_files.h"
#include "world/settings.h"

namespace {

constexpr const char* gameKey = "Software\\Maxis\\The Sims";
constexpr const char* gameValue = "SIMS_DATA";
constexpr std::size_t longestValue = 99;  // characters that findSimsDirectory takes
// Where the newer compilation keeps its saves, below a user's directory. It has no entry in the registry.
constexpr const char* savedGames = "Saved Games\\Electronic Arts\\The Sims 25";
constexpr const char* chosenDirectory = "Directory";  // the setting
constexpr int cancelled = 1;

struct Game {
    std::string prefix;     // the Wine prefix that it is in; empty if there is none
    std::string directory;  // without a separator at its end

    std::string file(const std::string& name) const { return directory + '\\' + name; }
};
using Games = std::vector<Game>;

bool isDirectory(const std::string& path) {
    FileStatus status{};
    return queryFileStatus(path.c_str(), status) &&
           (status.mode == writableDirectoryMode || status.mode == readOnlyDirectoryMode);
}

// An installed game has GameData; of a newer compilation there are saves alone.
bool holdsGame(const std::string& directory) {
    return isDirectory(directory + "\\UserData") || isDirectory(directory + "\\GameData");
}

bool isSame(const std::string& directory, const std::string& other) {
    return realPath(directory) == realPath(other) || isSameFile(directory.c_str(), other.c_str());
}

void addGame(Games& games, const std::string& prefix, const std::string& directory) {
    const bool isKnown =
        std::ranges::any_of(games, [&](const Game& game) { return isSame(game.directory, directory); });
    if (!isKnown && holdsGame(directory)) games.push_back({prefix, directory});
}

Games gamesIn(const std::string& prefix) {
    Games games;
    const RegisteredDirectory registered = registeredDirectory(prefix, gameKey, gameValue);
    // A short name that may mean several games is no answer.
    if (std::ranges::count_if(registered.directories, holdsGame) == 1) {
        addGame(games, prefix, *std::ranges::find_if(registered.directories, holdsGame));
    }
    for (const std::string& directory : usersDirectories(prefix, savedGames)) {
        addGame(games, prefix, directory);
    }
    return games;
}

// What a user who looks for the game may point at: its directory, the one with its saves, or a prefix.
Games gamesAt(const std::string& directory) {
    const std::string parent = directory.substr(0, directory.find_last_of("\\/"));
    for (const std::string& place : {directory, parent}) {
        if (holdsGame(place)) return {{winePrefixAbove(place), place}};
    }
    for (const std::string& prefix : {winePrefixAt(directory), winePrefixAbove(directory)}) {
        if (Games games; !prefix.empty() && !(games = gamesIn(prefix)).empty()) return games;
    }
    return {};
}

std::string neighborhoodFile(const Game& game, int number) {
    return game.file("UserData" + (number > 1 ? std::to_string(number) : "") + "\\Neighborhood.iff");
}

// The line of a game in the list: its path, its neighborhoods, and when it was last played.
struct ListedGame {
    Game game;
    std::string played;
    std::string line;
};

ListedGame listed(const Game& game) {
    int count = 0;
    std::string played;
    for (int number = 1; number <= highestNeighborhoodCount; ++number) {
        const std::string written = lastWritten(neighborhoodFile(game, number).c_str());
        if (written.empty()) continue;
        ++count;
        played = std::max(played, written);
    }
    const std::string neighborhoods = std::to_string(count) + (count == 1 ? " neighborhood" : " neighborhoods");
    return {game, played,
            shownPath(game.directory) + " - " + neighborhoods + (played.empty() ? "" : ", last played " + played)};
}

// Those played last come first.
std::vector<ListedGame> listed(const Games& games) {
    std::vector<ListedGame> list;
    for (const Game& game : games) {
        list.push_back(listed(game));
    }
    std::ranges::stable_sort(list, std::ranges::greater{}, &ListedGame::played);
    return list;
}

// The directory alone says where the game is: the prefix above it is found again.
std::string rememberedDirectory(const std::string& settings) {
    return readSetting(settings, settingsSection::game, chosenDirectory);
}

class GameSearch {
 public:
    GameSearch(const GameWish& wish, const std::string& ownDirectory)
        : wish_(wish), ownDirectory_(ownDirectory), settings_(ownDirectory + '\\' + settingsName) {}

    int run(DirectoryText& simsDirectory) {
        if (const int refusal = find(); refusal != 0) return refusal;
        if (const int refusal = handOver(simsDirectory); refusal != 0) return refusal;
        if (isChoice_ && !wish_.changesNothing) remember();
        return 0;
    }

 private:
    // Each of these returns 0 with `game_` set, or an exit code after saying why.
    int find() {
        if (!wish_.directory.empty()) return findWished();
        if (const std::string prefix = chosenWinePrefix(); !prefix.empty()) return findIn(prefix);
        if (!hasWinePrefixes() && !registeredDirectory("", gameKey, gameValue).text.empty()) return findIn("");
        if (takeRemembered()) return 0;
        return findAnywhere();
    }

    bool takeRemembered() {
        note_ = faultOfSettings(settings_);
        const std::string directory = rememberedDirectory(settings_);
        if (directory.empty()) return false;
        if (directory == absolutePath(directory) && holdsGame(directory)) {
            take({winePrefixAbove(directory), directory});
            return true;
        }
        note_ = "The game that was chosen isn't there any more: " + shownPath(directory) + ".";
        return false;
    }

    // The environment names the prefix each time, and each time it would be asked which game in it is meant.
    bool takeRememberedOf(const Games& games) {
        const auto game = std::ranges::find_if(games, [remembered = rememberedDirectory(settings_)](const Game& one) {
            return isSame(one.directory, remembered);
        });
        if (game == games.end() && games.size() > 1) note_ = faultOfSettings(settings_);
        return game != games.end() && take(*game) == 0;
    }

    int findWished() {
        const std::string directory = absolutePath(wish_.directory);
        const Games games = gamesAt(directory);
        const std::string fault = wish_.changesNothing ? "" : faultOfSettings(settings_);
        if (!fault.empty()) say(fault, wish_.askNothing);
        isChoice_ = true;
        if (games.empty()) return refuse(nothingIn(directory));
        return takeOneOf(games, severalIn(directory));
    }

    // The user's environment or the registry decides.
    int findIn(const std::string& prefix) {
        const Games games = gamesIn(prefix);
        // The editor on Windows opens the registered game, which is the first one, and no other.
        if (!games.empty() && prefix.empty()) return take(games.front());
        if (!games.empty()) return takeRememberedOf(games) ? 0 : takeOneOf(games, severalIn(prefix));
        const std::string missing = missingIn(prefix);
        if (prefix.empty()) {
            return refuse(missing +
                          "\n\nIf it is on a disk that isn't there now, bring that back; if the game was moved, move "
                          "it back or install it again.");
        }
        return refuse(
            (missing.empty() ? "The registry of " + shownPath(prefix) + " has no entry of The Sims." : missing) +
            "\n\nSet WINEPREFIX to the game's prefix, or leave it out and let Tidewright search.");
    }

    // A sentence about an entry that leads nowhere.
    static std::string missingIn(const std::string& prefix) {
        const std::string text = registeredDirectory(prefix, gameKey, gameValue).text;
        if (text.empty()) return "";
        const std::string registry = prefix.empty() ? "The registry" : "The registry of " + shownPath(prefix);
        return registry + " says that The Sims is in " + text + ", and it isn't there.";
    }

    int findAnywhere() {
        Games games;
        for (const std::string& prefix : foundWinePrefixes()) {
            for (const Game& game : gamesIn(prefix)) {
                addGame(games, game.prefix, game.directory);
            }
        }
        if (games.empty()) return askElsewhere();
        return takeOneOf(games, games.size() == 1 ? "This game was found." : "More than one game was found.");
    }

    int takeOneOf(const Games& games, const std::string& text) {
        if (games.size() == 1 && note_.empty()) return take(games.front());
        const std::vector<ListedGame> list = listed(games);
        std::vector<std::string> lines;
        std::string all = text + '\n';
        for (const ListedGame& game : list) {
            lines.push_back(game.line);
            all += '\n' + game.line;
        }
        all += "\n\nPlease name one by the option --game DIRECTORY.";
        if (wish_.askNothing) return refuse(all);
        isChoice_ = true;
        const GameAnswer answer = askForGame(noted(text) + "\n\nWhich one shall be opened?", lines);
        if (answer.kind == GameAnswer::Kind::noDisplay) return refuse(all);
        if (answer.kind == GameAnswer::Kind::game) return take(list.at(answer.game).game);
        return answer.kind == GameAnswer::Kind::elsewhere ? chooseDirectoryOfGame() : cancelled;
    }

    int askElsewhere() {
        const std::string text = nothingFound();
        const std::string advice = "\n\nPlease name its directory by the option --game DIRECTORY.";
        if (wish_.askNothing) return refuse(text + advice);
        const GameAnswer answer = askForGame(noted(text) + "\n\nWhere is the game?", {});
        if (answer.kind == GameAnswer::Kind::noDisplay) return refuse(text + advice);
        return answer.kind == GameAnswer::Kind::elsewhere ? chooseDirectoryOfGame() : cancelled;
    }

    int chooseDirectoryOfGame() {
        const char* const title =
            hasWinePrefixes() ? "The game's directory, or its Wine prefix" : "The game's directory";
        note_.clear();  // it was shown with the question before
        std::string directory;
        if (!chooseDirectory(nullptr, title, directory)) return cancelled;
        const Games games = gamesAt(directory);
        isChoice_ = true;
        if (!games.empty()) return takeOneOf(games, severalIn(directory));
        say(directory.empty() ? unreachable() : nothingIn(directory), false);
        return chooseDirectoryOfGame();
    }

    static std::string severalIn(const std::string& directory) {
        return "More than one game is in " + shownPath(directory) + ".";
    }

    static std::string nothingIn(const std::string& directory) {
        const std::string wanted = "The game's directory is the one with the directory UserData";
        return "The Sims isn't in " + shownPath(directory) + ".\n\n" + wanted +
               (hasWinePrefixes() ? "; the Wine prefix that the game is in will do, too." : ".");
    }

    static std::string unreachable() {
        return "The path of that directory has letters that Windows' own language doesn't have, so neither the game "
               "nor Tidewright can open it. Move the game to a directory without them.";
    }

    static std::string nothingFound() {
        std::string text = "The Sims wasn't found.";
        if (!hasWinePrefixes()) return text + " The registry has no entry of it.";
        text += " Tidewright looked for Wine prefixes with the game in";
        const char* separator = " ";
        for (const std::string& place : winePrefixPlaces()) {
            text += separator + place;
            separator = ", ";
        }
        text += '.';
        for (const std::string& prefix : foundWinePrefixes()) {
            const std::string missing = missingIn(prefix);
            if (!missing.empty()) text += "\n\n" + missing;
        }
        return text;
    }

    int take(const Game& game) {
        game_ = game;
        return 0;
    }

    int refuse(const std::string& text) const {
        say(noted(text), wish_.askNothing);
        return exitCode::gameNotFound;
    }

    std::string noted(const std::string& text) const { return note_.empty() ? text : note_ + "\n\n" + text; }

    // Makes the registry lead to the game, for this process and the editor.
    int handOver(DirectoryText& simsDirectory) const {
        if (!game_.prefix.empty()) useWinePrefix(game_.prefix);
        if (leadsToGame(simsDirectory)) return 0;
        if (!hasWinePrefixes()) return registerOnWindows(simsDirectory);
        if (registerDirectory(game_.directory, ownDirectory_ + "/games", gameKey, gameValue) &&
            leadsToGame(simsDirectory)) {
            return 0;
        }
        return refuse("Tidewright can't lead its window to the game in " + shownPath(game_.directory) +
                      ": nothing can be written into " + shownPath(ownDirectory_) + "/games.");
    }

    int registerOnWindows(DirectoryText& simsDirectory) const {
        const std::string present = registeredDirectory("", gameKey, gameValue).text;
        if (!present.empty() && isSame(present, game_.directory)) return refuse(tooLong(present));
        if (!present.empty()) {
            return refuse("The registry says that The Sims is in " + present +
                          ", and Tidewright's window goes by that. It can't open another game, and doesn't change an "
                          "entry that is there.");
        }
        if (game_.directory.size() > longestValue) return refuse(tooLong(game_.directory));
        if (wish_.changesNothing) {
            return refuse("The registry of Windows doesn't say where The Sims is. Start Tidewright first.");
        }
        if (!confirm("The registry of Windows doesn't say where The Sims is, and Tidewright's window goes by that. "
                     "This entry will be made:\n\nHKEY_LOCAL_MACHINE\\" +
                         std::string(gameKey) + "\n" + gameValue + " = " + game_.directory + "\n\nShall it be made?",
                     wish_.askNothing)) {
            return cancelled;
        }
        if (registerDirectory(game_.directory, "", gameKey, gameValue) && leadsToGame(simsDirectory)) return 0;
        return refuse("The entry couldn't be made (error " + std::to_string(GetLastError()) +
                      "). Start Tidewright once as an administrator.");
    }

    static std::string tooLong(const std::string& directory) {
        return "The path of the game is too long for Tidewright's window, which takes " + std::to_string(longestValue) +
               " characters:\n\n" + directory + "\n\nMove the game to a directory with a shorter path.";
    }

    // The editor's own way to the game.
    bool leadsToGame(DirectoryText& simsDirectory) const {
        DirectoryText found;
        if (findSimsDirectory(found) != 0 || !holdsGame(found.c_str())) return false;
        if (!isSame(found.c_str(), game_.directory)) return false;
        simsDirectory = found;
        simsDirectory.append('\\');
        return true;
    }

    void remember() const {
        if (!writeSetting(settings_, settingsSection::game, chosenDirectory, game_.directory)) {
            say("The choice can't be kept: " + shownPath(settings_) + " can't be written.", wish_.askNothing);
        }
    }

    GameWish wish_;
    std::string ownDirectory_;
    std::string settings_;
    std::string note_;  // a sentence for the next box, which comes in any case then
    Game game_;
    bool isChoice_ = false;
};

}  // namespace

int findGame(const GameWish& wish, const std::string& ownDirectory, DirectoryText& simsDirectory) {
    return GameSearch(wish, ownDirectory).run(simsDirectory);
}
