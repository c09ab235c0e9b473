#include "start/cut_off.h"

#include <string_view>
#include <vector>

#include "start/evening_check.h"
#include "start/left_overs.h"

namespace {

void append(std::string& text, std::string_view sentence) {
    if (!text.empty()) text += ' ';
    text += sentence;
}

// A save replaces the characters' files first, so the neighborhood file is new only if the save was complete.
std::string stateOf(const EveningChanges& changes, const EveningCheck& check, bool isMissing) {
    std::string state;
    if (changes.isSaved) {
        append(state, check.losses.empty() ? "it was saved as a whole." : "it was saved.");
    } else if (isMissing) {
        append(state, "a save was cut off between its last two steps.");
    } else if (changes.isByEditor()) {
        append(state,
               "a save was cut off between the Sims and the neighborhood file, so these Sims must not grow up now.");
    }
    for (const std::vector<std::string>& sentences : {check.news, check.losses}) {
        for (const std::string& sentence : sentences) {
            append(state, sentence);
        }
    }
    if (changes.isPlayed) append(state, "The game has saved since, and going back would undo that, too.");
    return state;
}

void addLeftOvers(const NeighborhoodPlace& place, const std::vector<LeftOver>& leftOvers, std::string& state) {
    const std::string begin = place.name() + ": ";
    for (const LeftOver& leftOver : leftOvers) {
        if (leftOver.sentence.starts_with(begin)) append(state, leftOver.sentence.substr(begin.size()));
    }
}

std::string describe(const NeighborhoodPlace& before, const NeighborhoodPlace& now, const EveningChanges& changes,
                     const std::vector<LeftOver>& leftOvers) {
    EveningCheck check;
    const NeighborhoodVersion old(before);
    const NeighborhoodVersion present(now);
    if (changes.isByEditor()) {
        if (old.isRead() && present.isRead()) check = checkEvening(old, present, changes);
    }
    std::string state = stateOf(changes, check, !present.isRead());
    addLeftOvers(now, leftOvers, state);
    return state;
}

}  // namespace

CutOffEvening describeCutOff(const Evening& evening) {
    CutOffEvening result;
    std::vector<LeftOver> leftOvers = findLeftOvers(evening.game);
    std::erase_if(leftOvers,
                  [&](const LeftOver& each) { return each.isHarmless && each.written < evening.begin - coarsestTime; });
    for (const NeighborhoodPlace& before : neighborhoodsIn(evening.before)) {
        NeighborhoodPlace now = before;
        now.directory = evening.game + before.directory.substr(evening.before.size());
        const EveningChanges changes = changesOf(before, now, evening.begin);
        result.wasPlayedSince |= changes.isPlayed;
        const std::string state = describe(before, now, changes, leftOvers);
        if (state.empty()) continue;
        result.text +=
            (result.isAsBefore ? "The last evening was cut off. " : "\n\n") + now.name() + " is as follows: " + state;
        result.isAsBefore = false;
    }
    return result;
}
