#include "start/half_saved.h"

#include <cstdint>
#include <vector>

#include "platform/files.h"
#include "start/old_versions.h"
#include "start/stage_check.h"
#include "ui/sentence_parts.h"
#include "world/paths.h"

namespace {

// A path from the neighborhood's directory.
std::string ofCharacters(const std::string& file) {
    return std::string(charactersDirectory) + '\\' + file;
}

// The old version of the file of a Sim who is half saved, as a path from "Characters"; else empty. `saved` is when the
// neighborhood file was written.
std::string versionBefore(const NeighborhoodPlace& place, const Sim& sim, const std::string& file, std::int64_t saved) {
    FileStatus status{};
    if (!queryFileStatus(place.character(file).c_str(), status) || status.written <= saved) return "";
    std::string old = asideOf(place.characters(), file);
    if (old.empty()) old = backupSince(saved, place.characters(), file);
    if (old.empty()) return "";
    const CharacterLook look = lookAtCharacter(place.character(file));
    if (!look.fault.empty() || bodyFitsRecord(sim, look)) return "";
    return bodyFitsRecord(sim, lookAtCharacter(place.character(old))) ? old : "";
}

}  // namespace

std::string halfSavedSims(const NeighborhoodPlace& place, Neighborhood& neighborhood) {
    const SteadyDirectories steady;
    FileStatus status{};
    if (!queryFileStatus(place.liveFile().c_str(), status)) return "";
    std::vector<std::string> names;
    std::vector<std::string> copies;
    for (std::int32_t i = 0; i < neighborhood.simCount(); ++i) {
        const Sim& sim = *neighborhood.sim(i);
        const std::string file = sim.recordName() + std::string(".iff");
        const std::string old = versionBefore(place, sim, file, status.written);
        if (old.empty()) continue;
        names.push_back(lookAtCharacter(place.character(file)).name);
        copies.push_back(ofCharacters(old) + " to " + ofCharacters(file));
    }
    if (names.empty()) return "";
    const std::string have =
        names.size() == 1 ? " has a new body and an old record" : " have new bodies and old records";
    return "a save was cut off between the Sims and the neighborhood file. " + listed(names) + have +
           ", and must not grow up now. Close Tidewright, and copy " + listed(copies) + " first.";
}
