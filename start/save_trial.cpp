#include "start/save_trial.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>

#include "platform/files.h"
#include "prepare/character_files.h"
#include "prepare/whole_file.h"
#include "start/character_look.h"
#include "ui/sentence_parts.h"
#include "world/paths.h"
#include "world/program_files.h"

namespace {

std::int64_t sizeOf(const std::string& path) {
    FileStatus status{};
    return queryFileStatus(path.c_str(), status) ? status.size : 0;
}

bool canRead(const std::string& path) {
    std::FILE* const file = openFile(path.c_str(), "rb");
    return file != nullptr && std::fclose(file) == 0;
}

// Whether a new version of the file can be begun, as a save does it. The part is deleted again.
bool canReplace(const std::string& path) {
    NewVersion version(path.c_str());
    return version.open(path.c_str()) != nullptr;
}

// A link to the live file is refused by a save, which would destroy the only old version.
bool canBeTemporary(const std::string& path, const std::string& live) {
    FileStatus status{};
    if (!queryFileStatus(path.c_str(), status)) return true;  // as a rule
    return status.mode == writableFileMode && !isSameFile(path.c_str(), live.c_str());
}

void tryNeighborhoodFile(const NeighborhoodPlace& place, Readiness& readiness) {
    const std::string live = place.liveFile();
    const std::string temporary = place.path(std::string(temporaryPrefix) + neighborhoodFileName);
    if (!canRead(live)) {
        const std::string listed =
            place.number == 1 ? "no neighborhood." : "only the neighborhoods before " + place.name() + ".";
        readiness.obstacles.push_back(live + " is missing or can't be read. The window will list " + listed);
    } else if (!canReplace(live)) {
        readiness.obstacles.push_back(live + " can't be saved: " + writeFailure() + ".");
    } else if (!canBeTemporary(temporary, live)) {
        readiness.obstacles.push_back(live + " can't be saved: " + temporary + " can't be written. Please delete it.");
    }
}

struct CharacterFaults {
    std::vector<std::string> unreadable = {};
    std::vector<std::string> broken = {};
    std::vector<std::string> writeProtected = {};
    std::int64_t largest = 0;  // in bytes, of all
};

CharacterFaults faultsOf(const NeighborhoodPlace& place) {
    const SteadyDirectories steady;
    CharacterFaults faults;
    for (const std::string& name : characterNamesIn(place.characters().c_str())) {
        const std::string live = place.character(name);
        FileStatus status{};
        queryFileStatus(live.c_str(), status);
        faults.largest = std::max(faults.largest, status.size);
        if (!canRead(live)) {
            faults.unreadable.push_back(name);
            continue;
        }
        if (!lookAtCharacter(live).fault.empty()) faults.broken.push_back(name);
        if (status.mode != writableFileMode || !canBeTemporary(place.character(temporaryPrefix + name), live)) {
            faults.writeProtected.push_back(name);
        }
    }
    return faults;
}

void tryCharacters(const NeighborhoodPlace& place, const CharacterFaults& faults, Readiness& readiness) {
    const std::string in = " in " + place.characters();
    if (isThere(place.characters()) && !canReplace(place.character("new.iff"))) {
        readiness.obstacles.push_back("No file" + in + " can be saved: " + writeFailure() + ".");
    }
    if (!faults.writeProtected.empty()) {
        readiness.obstacles.push_back(listed(faults.writeProtected) + in +
                                      " can't be saved: writing isn't allowed. Please take the protection off.");
    }
    if (!faults.unreadable.empty()) {
        readiness.warnings.push_back(listed(faults.unreadable) + in + " can't be read.");
    }
    if (!faults.broken.empty()) {
        readiness.warnings.push_back("Not whole" + in + ": " + listed(faults.broken) + ".");
    }
}

// A save makes the directory where it is missing.
void tryBackups(const std::string& directory, Readiness& readiness) {
    const std::string backups = directory + '\\' + backupsDirectory;
    if (!isThere(backups) || canReplace(backups + "\\new.iff")) return;
    readiness.warnings.push_back("A save goes without backups in " + backups + ": " + writeFailure() + ".");
}

// At its height a save holds three more copies of the neighborhood file and of one character file, and a backup of each
// other Sim of a family.
void tryRoom(const NeighborhoodPlace& place, std::int64_t largestCharacter, Readiness& readiness) {
    constexpr std::int64_t copies = 3;
    constexpr std::int64_t others = 7;
    const std::int64_t character =
        std::max({largestCharacter, sizeOf(characterTemplateName), sizeOf(laterCharacterTemplateName)});
    const std::int64_t need = copies * sizeOf(place.liveFile()) + (copies + others) * character;
    const std::int64_t room = freeRoomIn(place.directory.c_str());
    if (room < 0 || room >= need) return;
    readiness.obstacles.push_back("The disk has no room for a save of " + place.name() + ": it takes " +
                                  withCommas(need) + " bytes, and " + withCommas(room) + " are free.");
}

}  // namespace

void trySave(const NeighborhoodPlace& place, Readiness& readiness) {
    tryNeighborhoodFile(place, readiness);
    const CharacterFaults faults = faultsOf(place);
    tryCharacters(place, faults, readiness);
    tryBackups(place.directory, readiness);
    tryBackups(place.characters(), readiness);
    tryRoom(place, faults.largest, readiness);
}
