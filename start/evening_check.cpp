#include "start/evening_check.h"

#include <algorithm>
#include <cstddef>

#include "gamefiles/iff_reader.h"
#include "platform/files.h"
#include "start/stage_check.h"
#include "ui/sentence_parts.h"

namespace {

// A save has room for this many bytes of a name.
constexpr std::size_t longestName = 63;

// Both versions and what is found about them.
struct Work {
    const NeighborhoodVersion& before;
    const NeighborhoodVersion& now;
    EveningCheck check = {};

    void lose(const std::string& sentence) { check.losses.push_back(sentence); }
    void tell(const std::string& sentence) { check.news.push_back(sentence); }
};

bool contains(const std::vector<FamilyEntry>& families, const FamilyEntry& family) {
    return std::ranges::any_of(families, [&](const FamilyEntry& each) { return each.isSame(family); });
}

bool isListed(const std::vector<FamilyEntry>& families, const Guid& guid) {
    return std::ranges::any_of(families, [&](const FamilyEntry& family) {
        return std::ranges::find(family.members, guid) != family.members.end();
    });
}

void checkFile(Work& work) {
    const std::string fault = readIff(work.now.file()).fault;
    if (fault.empty()) {
        ++work.check.checkedFiles;
    } else if (readIff(work.before.file()).fault.empty()) {
        work.lose("neighborhood.iff " + fault + ".");
    }
}

void checkFamilies(Work& work) {
    std::vector<std::string> gone;
    for (const FamilyEntry& family : work.before.families()) {
        if (!contains(work.now.families(), family)) gone.push_back(family.name);
    }
    if (gone.size() == 1) work.lose("The family " + gone[0] + " is gone.");
    if (gone.size() > 1) work.lose("The families " + listed(gone) + " are gone.");
}

// A new household may be one too many to be listed.
void checkMembers(Work& work) {
    if (!work.now.hasAllFamilies()) return;
    for (const FamilyEntry& family : work.before.families()) {
        if (!contains(work.now.families(), family)) continue;  // said already
        for (const Guid& guid : family.members) {
            if (isListed(work.now.families(), guid)) continue;
            Sim* const sim = work.before.simOfGuid(guid);
            work.lose((sim != nullptr ? work.before.nameOf(*sim) : "An unreadable Sim of the family " + family.name) +
                      " belongs to no family any more.");
        }
    }
}

void checkSims(Work& work) {
    std::vector<std::string> gone;
    for (std::int32_t i = 0; i < work.before.simCount(); ++i) {
        Sim& sim = work.before.sim(i);
        if (work.now.simOfRecord(sim.recordName()) == nullptr) gone.push_back(work.before.nameOf(sim));
    }
    if (!gone.empty()) work.lose(counted(gone.size(), "Sim is", "Sims are") + " gone: " + listed(gone) + ".");
}

// "user00013" for the file "user00013.iff".
std::string recordOf(const std::string& file) {
    return file.substr(0, file.rfind('.'));
}

void checkCharacter(Work& work, const std::string& file) {
    const CharacterLook look = lookAtCharacter(work.now.place().character(file));
    const CharacterLook old = lookAtCharacter(work.before.place().character(file));
    Sim* const sim = work.now.simOfRecord(recordOf(file));
    Sim* const oldSim = work.before.simOfRecord(recordOf(file));
    if (!look.fault.empty()) return work.lose(file + " " + look.fault + ".");
    if (sim == nullptr || oldSim == nullptr) return;  // said of the Sims, if a record is gone
    const std::string name = work.before.nameOf(*oldSim);
    const std::size_t losses = work.check.losses.size();
    if (old.fault.empty() && look.name != old.name.substr(0, longestName)) {
        work.lose(file + " has the name " + look.name + " instead of " + old.name + ".");
    }
    if (old.fault.empty() && look.guid != old.guid) work.lose(name + " has another GUID than before.");
    if (!bodyFitsRecord(*sim, look)) {
        work.lose(name + " has a new body, but the record in neighborhood.iff is of another age.");
    }
    if (work.check.losses.size() > losses) return;
    ++work.check.checkedFiles;
    const std::int32_t stage = stageOf(*sim, look);
    if (stage != stageOf(*oldSim, old)) work.tell(name + " is " + stageWord(stage) + " now.");
}

std::string householdOf(const Sim& sim) {
    if (sim.gender() == genderNumber::male) return "a household of his own";
    return sim.gender() == genderNumber::female ? "a household of her own" : "a household of its own";
}

void tellOfNewFamilies(Work& work) {
    for (const FamilyEntry& family : work.now.families()) {
        if (contains(work.before.families(), family)) continue;
        const std::string funds = ", with " + withCommas(family.funds) + ".";
        Sim* const sim = family.members.empty() ? nullptr : work.now.simOfGuid(family.members.front());
        if (sim == nullptr) {
            work.lose("The new household " + family.name + " has a member that can't be read.");
        } else {
            work.tell(work.before.nameOf(*sim) + " moved into " + householdOf(*sim) + funds);
        }
    }
}

}  // namespace

EveningCheck checkEvening(const NeighborhoodVersion& before, const NeighborhoodVersion& now,
                          const EveningChanges& changes) {
    const SteadyDirectories steady;
    Work work{before, now};
    if (changes.isSaved) {
        checkFile(work);
        checkFamilies(work);
        checkMembers(work);
        checkSims(work);
    }
    for (const std::string& file : changes.characters) {
        checkCharacter(work, file);
    }
    if (changes.isSaved) tellOfNewFamilies(work);
    return work.check;
}
