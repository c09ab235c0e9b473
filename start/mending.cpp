#include "start/mending.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "restore/actions.h"
#include "restore/restore_points.h"
#include "start/left_overs.h"
#include "start/neighborhood_files.h"
#include "ui/sentence_parts.h"
#include "ui/words.h"
#include "world/program_files.h"

namespace {

using LeftOvers = std::vector<LeftOver>;

// All that are deleted are named (ui/sentence_parts.h).
constexpr std::size_t mostNamed = 31;

// By their paths in the game's directory.
std::string namesOf(const LeftOvers& leftOvers, const std::string& simsDirectory) {
    std::vector<std::string> names;
    for (const LeftOver& leftOver : leftOvers) {
        names.push_back(leftOver.version.substr(simsDirectory.size()));
    }
    return listed(names);
}

void deleteAll(const LeftOvers& superseded, const std::string& simsDirectory) {
    LeftOvers remaining;
    for (const LeftOver& leftOver : superseded) {
        if (!deleteSuperseded(leftOver)) remaining.push_back(leftOver);
    }
    if (!remaining.empty()) say("These files couldn't be deleted: " + namesOf(remaining, simsDirectory) + ".", false);
}

}  // namespace

void mend(const std::string& simsDirectory, bool askNothing) {
    for (const LeftOver& leftOver : findLeftOvers(simsDirectory)) {
        if (!leftOver.isOffer()) continue;
        const std::string text = leftOver.sentence + "\n\n" + leftOver.question;
        if (!confirm(text, askNothing, !isThere(leftOver.live))) continue;
        const MadePoint made = makeRestorePoint(restorePointsDirectory, simsDirectory, PointReason::byHand);
        const std::string without = sentenceOf(made) + "\n\nShall " + leftOver.version + " be put back without one?";
        if (made.name.empty() && !confirm(without, askNothing)) continue;
        if (!putInPlace(leftOver)) {
            say(leftOver.live + " couldn't be put back. Everything is as it was.", askNothing);
        }
    }
}

void nameHarmless(const std::string& simsDirectory, std::int64_t since, bool areNamed, bool askNothing) {
    LeftOvers superseded, others;
    for (const LeftOver& leftOver : findLeftOvers(simsDirectory)) {
        if (!leftOver.isHarmless || leftOver.written < since) continue;
        (leftOver.isSuperseded ? superseded : others).push_back(leftOver);
    }
    const std::string kept = others.empty()
                                 ? ""
                                 : "Left over from saves that were cut off: " + namesOf(others, simsDirectory) +
                                       ". What you changed then may be in there, so Tidewright keeps it. It "
                                       "does no harm; you may delete it.";
    superseded.resize(std::min(superseded.size(), mostNamed));
    if (superseded.empty()) {
        if (!kept.empty() && !areNamed) say(kept, askNothing);
        return;
    }
    const std::string question =
        "Left over from saves that were cut off, and of no use any more: " + namesOf(superseded, simsDirectory) +
        ". The game's own files are whole, and the same or newer." + (kept.empty() ? "" : "\n\n" + kept) +
        "\n\n[OK] deletes what is of no use any more. [Cancel] keeps it.";
    if (confirm(question, askNothing, false, Buttons::cancelFirst)) deleteAll(superseded, simsDirectory);
}
