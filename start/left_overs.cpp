#include "start/left_overs.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <map>
#include <optional>
#include <string_view>

#include "gamefiles/iff_reader.h"
#include "platform/files.h"
#include "platform/letter_case.h"
#include "platform/part_names.h"
#include "prepare/character_files.h"
#include "prepare/whole_file.h"
#include "start/neighbor_records.h"
#include "start/neighborhood_files.h"
#include "start/old_versions.h"
#include "ui/sentence_parts.h"
#include "world/paths.h"

namespace {

constexpr std::string_view extension = ".iff";

// What lies beside a live file, or in its place. All are names in its directory.
struct Remains {
    std::string live;  // as the directory spells it, or as it was spelled when it was there
    bool isThere = false;
    std::string temporary = {};
    std::string part = {};
    std::string aside = {};
};

// By the live files' names in small letters.
using RemainsByFile = std::map<std::string, Remains>;

// The directory of a neighborhood or its characters, with its files.
struct Place {
    const NeighborhoodPlace& neighborhood;
    std::string directory;
    bool isOfCharacters;
};

bool isSavedName(const std::string& name, const Place& place) {
    return place.isOfCharacters ? isCharacterName(name) : equalInAnyCase(name, neighborhoodFileName);
}

// The live file that a name belongs to; empty if it belongs to none.
std::string liveNameOf(const std::string& name, const Place& place) {
    std::string live = name;
    if (const std::string file = fileOfPart(name); !file.empty()) live = file;
    if (const std::string file = fileOfAside(name); !file.empty()) live = file;
    if (live.starts_with(temporaryPrefix)) live.erase(0, std::string_view(temporaryPrefix).size());
    return isSavedName(live, place) ? live : "";
}

void note(Remains& remains, const std::string& name, const std::string& live) {
    if (!fileOfAside(name).empty()) {
        remains.aside = name;
        if (!remains.isThere) remains.live = live;
    } else if (!fileOfPart(name).empty()) {
        remains.part = name;
    } else if (name.starts_with(temporaryPrefix)) {
        remains.temporary = name;
    } else {
        remains.isThere = true;
        remains.live = live;
    }
}

RemainsByFile remainsIn(const Place& place) {
    RemainsByFile all;
    if (!place.isOfCharacters) all[neighborhoodFileName].live = neighborhoodFileName;
    for (const std::string& name : fileNamesIn(place.directory.c_str())) {
        const std::string live = liveNameOf(name, place);
        if (live.empty()) continue;
        Remains& remains = all[lowered(live)];
        if (remains.live.empty()) remains.live = live;
        note(remains, name, live);
    }
    return all;
}

bool isWhole(const std::string& path) {
    const std::optional<Bytes> file = readWholeFile(path.c_str());
    return file && readIff(*file).fault.empty();
}

std::int64_t sizeOf(const std::string& path) {
    FileStatus status{};
    return queryFileStatus(path.c_str(), status) ? status.size : -1;
}

// The best whole version beside the live file. A save replaces the characters' files before the neighborhood's, so the
// new version of that one belongs to their new versions, and their old versions belong to the old one.
std::string wholeVersionOf(const Remains& remains, const Place& place) {
    const std::string backup = newestBackupOf(place.directory, remains.live);
    std::vector<std::string> versions = {remains.temporary, remains.part, remains.aside, backup};
    if (place.isOfCharacters) versions = {remains.aside, backup, remains.temporary, remains.part};
    const auto best = std::ranges::find_if(versions, [&](const std::string& version) {
        return !version.empty() && isWhole(place.directory + '\\' + version);
    });
    return best == versions.end() ? "" : *best;
}

// A game deletes the file of a Sim who is gone. What a save once left of it isn't put back then.
bool isExpected(const Remains& remains, const Place& place) {
    if (!place.isOfCharacters) return true;
    const std::optional<Bytes> file = readWholeFile(place.neighborhood.liveFile().c_str());
    if (!file) return true;
    const std::string record = lowered(remains.live.substr(0, remains.live.size() - extension.size()));
    return nextTag(*file, record, 0) < file->size();
}

// An older version of this program copied the new version over the live file, and could be cut off there. Other tools
// may write files that are whole to them and not to us, but hardly such short ones.
bool isBroken(const Remains& remains, const Place& place) {
    const std::int64_t size = sizeOf(place.directory + '\\' + remains.live);
    if (size == 0) return true;
    const bool isCut = !remains.temporary.empty() && size < sizeOf(place.directory + '\\' + remains.temporary);
    return isCut && !isWhole(place.directory + '\\' + remains.live);
}

LeftOver offerFor(const Remains& remains, const Place& place, const std::string& fault) {
    const std::string what = place.neighborhood.name() + ": " + remains.live + fault;
    const std::string version = wholeVersionOf(remains, place);
    if (version.empty()) return {what + " There is no whole version of it beside it or in Backups."};
    const std::string kind = version == remains.aside || version.starts_with(backupsDirectory) ? "an older" : "the new";
    return {what + " " + version + " is " + kind + " version, and whole.",
            "Shall " + version + " take the place of " + remains.live + "?", place.neighborhood.directory,
            place.directory + '\\' + remains.live, place.directory + '\\' + version};
}

// `live` is empty where it isn't known which file this was to become.
struct Harmless {
    std::string path;
    std::string live;
};

// A link is the live file itself. File times of one disk never go back, however coarse they are.
bool isSuperseded(const std::string& path, const std::string& live) {
    FileStatus left{}, present{};
    if (!queryFileStatus(path.c_str(), left) || !queryFileStatus(live.c_str(), present)) return false;
    if (isSameFile(path.c_str(), live.c_str()) || !isWhole(live)) return false;
    return (present.written > left.written && !isWhole(path)) ||
           readWholeFile(path.c_str()) == readWholeFile(live.c_str());
}

void addHarmless(std::vector<Harmless>& harmless, const Remains& remains, std::vector<LeftOver>& found,
                 const Place& place) {
    for (const std::string& name : {remains.temporary, remains.part}) {
        if (!name.empty()) harmless.push_back({place.directory + '\\' + name, place.directory + '\\' + remains.live});
    }
    if (remains.aside.empty()) return;
    found.push_back({.sentence = place.neighborhood.name() + ": " + remains.aside + " is an old version of " +
                                 remains.live +
                                 " that isn't in Backups. The next save of this neighborhood deletes it: if you want "
                                 "to keep it, copy it somewhere else.",
                     .isOldVersion = true});
}

void lookAt(const Remains& remains, const Place& place, std::vector<LeftOver>& found, std::vector<Harmless>& harmless) {
    if (!remains.isThere && isExpected(remains, place)) {
        found.push_back(offerFor(remains, place, " is missing."));
    } else if (remains.isThere && isBroken(remains, place)) {
        found.push_back(offerFor(remains, place, " is only part of a file. Don't save before it is whole again."));
    } else {
        addHarmless(harmless, remains, found, place);
    }
}

// Parts of backupsDirectory, and the copies that version 1.1.0 left on Windows.
void addOtherParts(const std::string& directory, std::vector<Harmless>& harmless) {
    const std::string begin = directory + '\\';
    for (const std::string& name : fileNamesIn(directory.c_str())) {
        const bool isOldPart = name.starts_with("~part") && name.ends_with(".tmp");
        const bool isOfBackup =
            directory.ends_with(backupsDirectory) && !(fileOfPart(name) + fileOfAside(name)).empty();
        if (isOldPart || isOfBackup) harmless.push_back({begin + name, ""});
    }
}

void lookIn(const NeighborhoodPlace& neighborhood, std::vector<LeftOver>& found) {
    std::vector<Harmless> harmless;
    for (const bool isOfCharacters : {false, true}) {
        const Place place{neighborhood, isOfCharacters ? neighborhood.characters() : neighborhood.directory,
                          isOfCharacters};
        for (const auto& [name, remains] : remainsIn(place)) {
            lookAt(remains, place, found, harmless);
        }
        addOtherParts(place.directory, harmless);
        addOtherParts(place.directory + '\\' + backupsDirectory, harmless);
    }
    for (const auto& [path, live] : harmless) {
        FileStatus status{};
        queryFileStatus(path.c_str(), status);
        found.push_back({.sentence = neighborhood.name() + ": " + path.substr(path.rfind('\\') + 1) +
                                     " is left over from a save that was cut off. It does no harm; you may delete it.",
                         .directory = neighborhood.directory,
                         .live = live,
                         .version = path,
                         .isHarmless = true,
                         .isSuperseded = isSuperseded(path, live),
                         .written = status.written});
    }
}

}  // namespace

std::vector<LeftOver> findLeftOvers(const std::string& simsDirectory) {
    const SteadyDirectories steady;
    std::vector<LeftOver> found;
    for (const NeighborhoodPlace& neighborhood : neighborhoodsIn(simsDirectory)) {
        lookIn(neighborhood, found);
    }
    return found;
}

bool putInPlace(const LeftOver& leftOver) {
    const DirectoryLock lock(leftOver.directory.c_str());
    FileStatus status{};
    const bool isThere = queryFileStatus(leftOver.live.c_str(), status);
    const std::optional<Bytes> bytes = readWholeFile(leftOver.version.c_str());
    if (lock.isHeldByAnother() || (isThere && isWhole(leftOver.live))) return false;
    if (!bytes || !readIff(*bytes).fault.empty()) return false;
    NewVersion version(leftOver.live.c_str());
    std::FILE* const file = version.open(leftOver.version.c_str());
    if (file == nullptr || std::fwrite(bytes->data(), 1, bytes->size(), file) != bytes->size()) return false;
    if (!version.complete() || !version.giveName()) return false;
    const bool isBackup = leftOver.version.find(std::string("\\") + backupsDirectory + "\\") != std::string::npos;
    if (version.isOnDisk() && !isBackup) deleteWhenFree(leftOver.version.c_str());
    return true;
}

bool deleteSuperseded(const LeftOver& leftOver) {
    const DirectoryLock lock(leftOver.directory.c_str());
    return !lock.isHeldByAnother() && isSuperseded(leftOver.version, leftOver.live) &&
           deleteWhenFree(leftOver.version.c_str());
}
