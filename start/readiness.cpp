#include "start/readiness.h"

#include <algorithm>
#include <memory>
#include <optional>

#include "gamefiles/iff_reader.h"
#include "platform/files.h"
#include "prepare/whole_file.h"
#include "start/half_saved.h"
#include "start/move_out_forecast.h"
#include "start/neighbor_records.h"
#include "start/neighborhood_files.h"
#include "start/save_trial.h"
#include "ui/sentence_parts.h"
#include "world/neighborhood.h"
#include "world/sims_directory.h"

namespace {

void lookAtRecords(const NeighborhoodPlace& place, bool readsLaterEditions, Readiness& readiness) {
    const std::optional<Bytes> file = readWholeFile(place.liveFile().c_str());
    if (!file) return;
    if (const std::string fault = readIff(*file).fault; !fault.empty()) {
        readiness.obstacles.push_back(place.liveFile() + " isn't whole: it " + fault + ".");
    }
    const auto neighborhood = std::make_unique<Neighborhood>();
    if (neighborhood->load(place.directory.c_str(), neighborhoodFileName, allFormats) != 0) return;
    const std::size_t later = countSims(*file, laterFormats);
    if (later > 0 && !readsLaterEditions) {
        readiness.warnings.push_back(place.name() + ": " + counted(later, "Sim", "Sims") +
                                     " of a later edition of the game, which " + (later == 1 ? "stays" : "stay") +
                                     " closed: the option --editions ask asks again.");
    }
    if (const std::string cut = halfSavedSims(place, *neighborhood); !cut.empty()) {
        readiness.warnings.push_back(place.name() + ": " + cut);
    }
    const std::string loss = moveOutLoss(*file, *neighborhood);
    if (loss.empty()) return;
    readiness.warnings.push_back(place.name() + ": a save of one Move Out would " + loss +
                                 ". Child to Teen and Teen to Adult drop nothing.");
}

// The editor cuts a longer path, and finds nothing there.
bool isTooLong(const NeighborhoodPlace& place) {
    return place.directory.size() > NeighborhoodPath::capacity();
}

void lookAt(const NeighborhoodPlace& place, bool readsLaterEditions, Readiness& readiness) {
    if (isTooLong(place)) {
        readiness.obstacles.push_back("The path " + place.directory + " is too long: Tidewright can use " +
                                      std::to_string(NeighborhoodPath::capacity()) + " characters.");
        return;
    }
    trySave(place, readiness);
    lookAtRecords(place, readsLaterEditions, readiness);
}

// The editor looks no further than to `gap`, the first number without a directory.
void lookForGap(const std::string& simsDirectory, int gap, Readiness& readiness) {
    const SteadyDirectories steady;
    std::vector<std::string> hidden;
    for (int number = gap + 1; number <= highestNeighborhoodCount; ++number) {
        const std::string name = neighborhoodDirectory("", number).c_str();
        if (isThere(simsDirectory + name)) hidden.push_back(name);
    }
    const std::string missing = simsDirectory + " has no directory " + neighborhoodDirectory("", gap).c_str() +
                                (hidden.empty() ? ": please play the game once, and save there."
                                                : ", so Tidewright doesn't list " + listed(hidden) + ".");
    if (gap == 1) {
        readiness.obstacles.push_back(missing);
    } else if (!hidden.empty()) {
        readiness.warnings.push_back(missing);
    }
}

}  // namespace

bool Readiness::isReady() const {
    return obstacles.empty() && std::ranges::all_of(leftOvers, &LeftOver::isOfWholeFile);
}

std::string Readiness::text() const {
    std::vector<std::string> lines = obstacles;
    lines.insert(lines.end(), warnings.begin(), warnings.end());
    for (const LeftOver& leftOver : leftOvers) {
        lines.push_back(leftOver.sentence);
    }
    std::string text;
    for (const std::string& line : lines) {
        text += (text.empty() ? "" : "\n\n") + line;
    }
    return text;
}

Readiness checkReadiness(const std::string& simsDirectory, bool readsLaterEditions) {
    Readiness readiness;
    const std::vector<NeighborhoodPlace> places = neighborhoodsIn(simsDirectory);
    lookForGap(simsDirectory, static_cast<int>(places.size()) + 1, readiness);
    for (const NeighborhoodPlace& place : places) {
        lookAt(place, readsLaterEditions, readiness);
    }
    readiness.leftOvers = findLeftOvers(simsDirectory);
    return readiness;
}
