// Files that a save leaves if it is cut off: the new version under a temporary name, parts, and old versions that were
// set aside. Mostly they do no harm, but a live file may be missing or broken beside them.
#ifndef START_LEFT_OVERS_H
#define START_LEFT_OVERS_H

#include <cstdint>
#include <string>
#include <vector>

struct LeftOver {
    std::string sentence;        // what was found, and what it means
    std::string question = {};   // the offer: what putInPlace does; empty if there is nothing to do
    std::string directory = {};  // of the neighborhood
    std::string live = {};       // the path of the file that is missing or broken, or that a harmless one belongs to
    std::string version = {};    // the path of what was found: of an offer, the whole version that takes that place
    bool isHarmless = false;     // nothing is missing or broken
    bool isSuperseded = false;   // harmless, and the live file is whole, and the same, or newer than this part of one
    std::int64_t written = 0;    // when one that is harmless was last written, in seconds since 1970
    bool isOldVersion = false;   // only the old file of a complete save, which couldn't put it into Backups

    bool isOffer() const { return !question.empty(); }
    bool isOfWholeFile() const { return isHarmless || isOldVersion; }
};

// In the order of the neighborhoods. `simsDirectory` has a trailing backslash.
std::vector<LeftOver> findLeftOvers(const std::string& simsDirectory);

// Takes the offer: puts the whole version in the live file's place, in one step. A version that is a backup stays; any
// other is deleted once the live file is on the disk. False, with nothing changed, if that can't be done, or if what
// was found isn't so any more.
bool putInPlace(const LeftOver& leftOver);

// Deletes one that is superseded. False if that can't be done, or if it isn't superseded any more.
bool deleteSuperseded(const LeftOver& leftOver);

#endif
