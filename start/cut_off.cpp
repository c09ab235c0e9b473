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
std::string endOfSave(const EveningChanges& changes, const EveningCheck& check, const NeighborhoodPlace& now) {
    if (changes.isSaved) return check.losses.empty() ? "it was saved as a whole." : "it was saved.";
    if (!isThere(now.liveFile())) return "a save was cut off between its last two steps.";
    if (!changes.isByEditor()) return "";
    return "a save was cut off between the Sims and the neighborhood file, so these Sims must not grow up now.";
}

// What left_overs.h says of the neighborhood. An old version that a save has set aside is there when a file is new.
std::string leftIn(const NeighborhoodPlace& now, const EveningChanges& changes,
                   const std::vector<LeftOver>& leftOvers) {
    const std::string begin = now.name() + ": ";
    std::string left;
    for (const LeftOver& leftOver : leftOvers) {
        if (!leftOver.sentence.starts_with(begin)) continue;
        if (leftOver.isOldVersion && !changes.isByEditor()) continue;
        append(left, leftOver.sentence.substr(begin.size()));
    }
    return left;
}

EveningCheck checkOf(const NeighborhoodPlace& before, const NeighborhoodPlace& now, const EveningChanges& changes) {
    if (!changes.isByEditor()) return {};
    const NeighborhoodVersion old(before);
    const NeighborhoodVersion present(now);
    if (old.isRead() && present.isRead()) return checkEvening(old, present, changes);
    if (!isThere(now.liveFile())) return {};  // which is said anyway
    return {.losses = {"neighborhood.iff can't be read, so nothing could be checked."}};
}

// What a save has done; empty if none was begun.
std::string stateOf(const NeighborhoodPlace& now, const EveningChanges& changes, const EveningCheck& check,
                    const std::string& left) {
    std::string state = endOfSave(changes, check, now);
    for (const std::vector<std::string>& sentences : {check.news, check.losses}) {
        for (const std::string& sentence : sentences) {
            append(state, sentence);
        }
    }
    if (!left.empty()) append(state, left);
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
        const EveningCheck check = checkOf(before, now, changes);
        std::string state = stateOf(now, changes, check, leftIn(now, changes, leftOvers));
        if (!state.empty()) {
            result.isAsBefore = false;
            result.isWhole &= changes.isSaved && check.losses.empty();
        }
        result.wasPlayedSince |= changes.isPlayed;
        if (changes.isPlayed) append(state, "The game has saved since, and going back would undo that, too.");
        if (state.empty()) continue;
        result.text +=
            (result.text.empty() ? "The last evening was cut off. " : "\n\n") + now.name() + " is as follows: " + state;
    }
    if (result.isAsBefore) result.text.clear();
    return result;
}
