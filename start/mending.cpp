#include "start/mending.h"

#include "restore/actions.h"
#include "restore/restore_points.h"
#include "start/left_overs.h"
#include "start/neighborhood_files.h"
#include "ui/words.h"
#include "world/program_files.h"

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
