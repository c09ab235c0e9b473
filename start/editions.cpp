#include "start/editions.h"

#include <array>
#include <cstddef>
#include <optional>

#include "platform/win32.h"
#include "prepare/whole_file.h"
#include "start/neighbor_records.h"
#include "start/neighborhood_files.h"
#include "ui/sentence_parts.h"
#include "ui/words.h"

namespace {

constexpr const char* section = "Editions";
constexpr const char* key = "Open";

std::size_t countLaterSims(const std::string& simsDirectory) {
    std::size_t count = 0;
    for (const NeighborhoodPlace& place : neighborhoodsIn(simsDirectory)) {
        const std::optional<Bytes> file = readWholeFile(place.liveFile().c_str());
        if (file) count += countSims(*file, laterFormats);
    }
    return count;
}

// A word that isn't one of ours counts as none.
EditionsWish remembered(const std::string& settings) {
    std::array<char, 16> word{};
    GetPrivateProfileStringA(section, key, "", word.data(), word.size(), settings.c_str());
    if (std::string(word.data()) == "later") return EditionsWish::later;
    return std::string(word.data()) == "base" ? EditionsWish::base : EditionsWish::ask;
}

// What can't be written is asked again.
void remember(EditionsWish answer, const std::string& settings) {
    const char* const word = answer == EditionsWish::later ? "later" : answer == EditionsWish::base ? "base" : nullptr;
    WritePrivateProfileStringA(section, key, word, settings.c_str());
}

EditionsWish ask(std::size_t sims) {
    const std::string question =
        "This game holds " + counted(sims, "Sim", "Sims") +
        " of a later edition of The Sims. Tidewright can open them, too. Its changes to such Sims were checked byte by "
        "byte, but never in that game itself. A restore point is made before each evening, so that you can go back.\n\n"
        "[OK] opens them. [Cancel] opens the game without them.\n\n"
        "The answer is remembered; the option --editions ask forgets it.";
    return confirm(question, false) ? EditionsWish::later : EditionsWish::base;
}

}  // namespace

Editions editionsToOpen(const std::string& simsDirectory, EditionsWish wish, const std::string& settings,
                        bool askNothing) {
    if (wish != EditionsWish::unsaid) remember(wish, settings);
    const std::size_t sims = countLaterSims(simsDirectory);
    if (sims == 0) return Editions::base;
    EditionsWish choice = wish == EditionsWish::unsaid ? remembered(settings) : wish;
    if (choice == EditionsWish::ask && !askNothing) {
        choice = ask(sims);
        remember(choice, settings);
    }
    return choice == EditionsWish::later ? Editions::later : Editions::base;
}

const char* editorFor(Editions editions) {
    return editions == Editions::later ? "tidewright-later" : "tidewright";
}
