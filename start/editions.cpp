#include "start/editions.h"

#include <cstddef>
#include <optional>

#include "prepare/whole_file.h"
#include "start/neighbor_records.h"
#include "start/neighborhood_files.h"
#include "ui/sentence_parts.h"
#include "ui/words.h"
#include "world/settings.h"

namespace {

constexpr const char* editionsToUse = "Open";  // the setting

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
    const std::string word = readSetting(settings, settingsSection::editions, editionsToUse);
    if (word == "later") return EditionsWish::later;
    return word == "base" ? EditionsWish::base : EditionsWish::ask;
}

// What can't be written is asked again.
void remember(EditionsWish answer, const std::string& settings) {
    const char* const word = answer == EditionsWish::later ? "later" : answer == EditionsWish::base ? "base" : "";
    writeSetting(settings, settingsSection::editions, editionsToUse, word);
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
    const std::size_t sims = countLaterSims(simsDirectory);
    const std::string fault = sims > 0 || wish != EditionsWish::unsaid ? faultOfSettings(settings) : "";
    if (!fault.empty()) say(fault, askNothing);
    if (wish != EditionsWish::unsaid) remember(wish, settings);
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
