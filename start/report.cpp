#include "start/report.h"

#include <algorithm>

#include "start/evening_check.h"
#include "start/left_overs.h"
#include "start/readiness.h"
#include "ui/sentence_parts.h"

namespace {

// What is said of the whole evening.
struct Findings {
    EveningReport report = {};
    std::size_t checkedFiles = 0;
    bool isUnchecked = false;  // something couldn't be checked

    void say(const std::string& paragraph) {
        if (paragraph.empty()) return;
        if (!report.text.empty()) report.text += "\n\n";
        report.text += paragraph;
    }
};

std::string joinedBySpaces(const std::vector<std::string>& sentences) {
    std::string text;
    for (const std::string& sentence : sentences) {
        text += (text.empty() ? "" : " ") + sentence;
    }
    return text;
}

void sayCheck(const NeighborhoodPlace& place, const EveningCheck& check, Findings& findings) {
    findings.checkedFiles += check.checkedFiles;
    const std::string news = check.news.empty() ? "It was saved." : joinedBySpaces(check.news);
    if (check.losses.empty()) return findings.say(place.name() + ": " + news);
    if (!check.news.empty()) findings.say(place.name() + ": " + news);
    findings.report.hasLoss = true;
    findings.say(place.name() + ": something is wrong. " + joinedBySpaces(check.losses));
}

void sayWhatWasSaved(const NeighborhoodPlace& before, const NeighborhoodPlace& now, const EveningChanges& changes,
                     Findings& findings) {
    const NeighborhoodVersion old(before);
    const NeighborhoodVersion present(now);
    if (!old.isRead()) {
        findings.isUnchecked = true;
        findings.say(now.name() + " was saved. The copy from before can't be read, so nothing could be checked.");
    } else if (!present.isRead()) {
        findings.report.hasLoss = true;
        findings.say(now.name() + ": neighborhood.iff is missing or can't be read.");
    } else {
        sayCheck(now, checkEvening(old, present, changes), findings);
    }
}

void lookAt(const NeighborhoodPlace& before, const NeighborhoodPlace& now, std::int64_t begin, Findings& findings) {
    const EveningChanges changes = changesOf(before, now, begin);
    findings.report.hasSaved |= changes.isByEditor();
    findings.report.wasPlayed |= changes.isPlayed;
    if (changes.isByEditor()) sayWhatWasSaved(before, now, changes, findings);
    const std::string played = "The game saved " + now.name() + " while Tidewright was open";
    if (changes.isReplaced) {
        findings.say(played + "; what you changed in it was not saved.");
    } else if (changes.isPlayed) {
        findings.say(played + (changes.isSaved ? ", too." : "."));
    }
}

void sayLeftOvers(const Evening& evening, Findings& findings) {
    for (const LeftOver& leftOver : findLeftOvers(evening.game)) {
        if (std::ranges::find(evening.known, leftOver.sentence) != evening.known.end()) continue;
        findings.report.hasLoss |= !leftOver.isOldVersion;
        findings.say((leftOver.isHarmless ? "A save wasn't completed. " : "") + leftOver.sentence);
    }
}

void sayEnd(const std::string& game, Findings& findings) {
    if (findings.report.hasSaved && !findings.report.hasLoss && !findings.isUnchecked) {
        findings.say("Checked: " + counted(findings.checkedFiles, "new file", "new files") +
                     ", whole to the end. Names, GUIDs and stages are right, and no family and no Sim is missing.");
    }
    if (!findings.report.text.empty()) return;
    const std::vector<std::string> obstacles = checkReadiness(game).obstacles;
    if (!obstacles.empty()) findings.say("Nothing was saved. " + joinedBySpaces(obstacles));
}

}  // namespace

EveningReport reportOn(const Evening& evening) {
    Findings findings;
    for (const NeighborhoodPlace& before : neighborhoodsIn(evening.before)) {
        NeighborhoodPlace now = before;
        now.directory = evening.game + before.directory.substr(evening.before.size());
        lookAt(before, now, evening.begin, findings);
    }
    sayLeftOvers(evening, findings);
    sayEnd(evening.game, findings);
    return findings.report;
}
