#include "start/evening_changes.h"

#include <algorithm>
#include <optional>
#include <set>

#include "platform/files.h"
#include "platform/letter_case.h"
#include "prepare/character_files.h"
#include "prepare/whole_file.h"
#include "start/evening.h"
#include "start/neighborhood_version.h"
#include "start/old_versions.h"
#include "world/paths.h"

namespace {

constexpr const char* housesDirectory = "Houses";
constexpr const char* extension = ".iff";

// Reads the files only if the times leave it open.
bool isChanged(const std::string& before, const std::string& now, std::int64_t begin) {
    FileStatus old{}, present{};
    const bool wasThere = queryFileStatus(before.c_str(), old);
    if (wasThere != queryFileStatus(now.c_str(), present)) return true;
    if (!wasThere) return false;
    const bool isOlder = present.written == old.written && present.written < begin - coarsestTime;
    if (old.size == present.size && isOlder) return false;
    return old.size != present.size || readWholeFile(before.c_str()) != readWholeFile(now.c_str());
}

// In small letters, of both directories.
std::set<std::string> namesInEither(const std::string& before, const std::string& now) {
    std::set<std::string> names;
    for (const std::string& directory : {before, now}) {
        for (const std::string& name : fileNamesIn(directory.c_str())) {
            names.insert(lowered(name));
        }
    }
    return names;
}

// Whether a save of the file, "neighborhood.iff" or "user00013.iff", has left its old version since `begin`. A disk in
// the network may have a clock that is behind: there a file that has changed looks older than the evening. Then a
// backup is of the evening if it is newer than the file was before, by the clock of that disk alone. An earlier evening
// may have set something aside, too, so the bytes of that are compared.
bool hasOldVersion(const std::string& before, const std::string& directory, const std::string& file,
                   std::int64_t begin) {
    FileStatus old{}, present{};
    std::int64_t since = begin - coarsestTime;
    if (queryFileStatus(before.c_str(), old) && queryFileStatus((directory + '\\' + file).c_str(), present) &&
        present.written < since) {
        since = old.written + coarsestTime + 1;
    }
    if (!backupSince(since, directory, file).empty()) return true;
    const std::string aside = asideOf(directory, file);
    return !aside.empty() && readWholeFile((directory + '\\' + aside).c_str()) == readWholeFile(before.c_str());
}

bool hasChangedHouse(const NeighborhoodPlace& before, const NeighborhoodPlace& now, std::int64_t begin) {
    const std::string directories[] = {before.path(housesDirectory), now.path(housesDirectory)};
    return std::ranges::any_of(namesInEither(directories[0], directories[1]), [&](const std::string& name) {
        return name.ends_with(extension) &&
               isChanged(directories[0] + '\\' + name, directories[1] + '\\' + name, begin);
    });
}

// The files of Sims whose record has another age than before, in small letters. No game does that, so
// they are proof of a save by the editor, even if it couldn't make backups and the next one has deleted what was aside.
std::set<std::string> filesOfGrownSims(const NeighborhoodPlace& before, const NeighborhoodPlace& now) {
    const NeighborhoodVersion old(before);
    const NeighborhoodVersion present(now);
    std::set<std::string> files;
    for (std::int32_t i = 0; i < present.simCount(); ++i) {
        const Sim& sim = present.sim(i);
        const Sim* const oldSim = old.simOfRecord(sim.recordName());
        if (oldSim != nullptr && oldSim->age() != sim.age()) files.insert(lowered(sim.recordName()) + extension);
    }
    return files;
}

void lookAtCharacters(const NeighborhoodPlace& before, const NeighborhoodPlace& now, std::int64_t begin,
                      const std::set<std::string>& grown, EveningChanges& changes) {
    for (const std::string& name : namesInEither(before.characters(), now.characters())) {
        if (!isCharacterName(name) || !isChanged(before.character(name), now.character(name), begin)) continue;
        if (!grown.contains(name) && !hasOldVersion(before.character(name), now.characters(), name, begin)) {
            changes.isPlayed = true;
        } else if (isThere(now.character(name))) {
            changes.characters.push_back(name);
        }
    }
}

}  // namespace

EveningChanges changesOf(const NeighborhoodPlace& before, const NeighborhoodPlace& now, std::int64_t begin) {
    const SteadyDirectories steady;
    EveningChanges changes;
    std::set<std::string> grown;
    if (isChanged(before.liveFile(), now.liveFile(), begin)) {
        grown = filesOfGrownSims(before, now);
        const bool isByEditor =
            !grown.empty() || hasOldVersion(before.liveFile(), now.directory, neighborhoodFileName, begin);
        changes.isSaved = isByEditor && isThere(now.liveFile());
        changes.isReplaced = changes.isPlayed = !isByEditor;
    }
    lookAtCharacters(before, now, begin, grown, changes);
    changes.isPlayed |= hasChangedHouse(before, now, begin);
    return changes;
}
