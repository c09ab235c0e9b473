#include "sample/installation.h"

#include <array>

#include "gamefiles/file_writing.h"
#include "sample/character_file.h"

namespace {

namespace fs = std::filesystem;

struct FileSizes {
    std::size_t neighborhood = 0;  // at least; 0 for no more than its content takes
    int friendsOfEach = 0;
};

// Versions of neighbor records: the base game's, and the one since the expansion packs.
constexpr std::int32_t baseVersion = 5;
constexpr std::int32_t packVersion = 7;

bool isChild(SampleKind kind) {
    return kind == SampleKind::child || kind == SampleKind::childOfStrayHead || kind == SampleKind::childOfOldMeshes;
}

// Some adults have the record and body strings of the base game, as if no expansion pack had saved them yet.
bool isFromBaseGame(const CastSim& sim) {
    return sim.kind == SampleKind::adult && sim.fileNumber % 7 == 0;
}

std::int32_t ageOf(SampleKind kind) {
    if (isChild(kind)) return 9;
    return kind == SampleKind::teen ? 18 : 27;
}

std::int32_t toneNumber(const std::string& tone) {
    if (tone == "lgt") return 1;
    return tone == "med" ? 3 : 2;
}

BodyEnding bodyEnding(const CastSim& sim) {
    if (sim.kind == SampleKind::childOfOldMeshes || isFromBaseGame(sim)) return BodyEnding::atEntry29;
    const bool hasWinterOutfit = sim.fileNumber % 5 == 0 && !isChild(sim.kind) && sim.kind != SampleKind::pet;
    return hasWinterOutfit ? BodyEnding::atEntry33 : BodyEnding::atEntry32;
}

BodySlots bodySlots(const CastSim& sim) {
    const BodySex sex = sim.gender == 1 ? BodySex::female : BodySex::male;
    if (sim.kind == SampleKind::pet) return petSlots();
    if (isChild(sim.kind)) return childSlots(sex, sim.tone);
    const bool isTeen = sim.kind == SampleKind::teen || sim.kind == SampleKind::teenOfAdultAge;
    return isTeen ? teenSlots(sex, sim.tone) : adultSlots(sex, sim.tone);
}

PortraitColors portraitColors(const CastSim& sim) {
    constexpr std::array<std::uint32_t, 5> hair = {0x704020, 0x2C2420, 0xD8B060, 0xB05030, 0x8C8C90};
    PortraitColors colors;
    if (sim.tone == "med") colors.skin = 0xC89468;
    if (sim.tone == "drk") colors.skin = 0x885838;
    colors.hair = hair[static_cast<std::size_t>(sim.fileNumber) % hair.size()];
    return colors;
}

SampleNeighbor castNeighbor(int neighborhoodIndex, const CastFamily& family, const CastSim& sim) {
    constexpr std::size_t bodySkill = 15;
    SampleNeighbor neighbor;
    neighbor.recordName = castRecordName(sim);
    neighbor.version = isFromBaseGame(sim) ? baseVersion : packVersion;
    // Made up. No value is the same as the next one, so a test notices one in the wrong place.
    for (std::size_t i = 2; i < neighbor.personValues.size(); ++i) {
        neighbor.personValues[i] = (sim.fileNumber * 7 + static_cast<std::int32_t>(i) * 13) % 10 * 100;
    }
    neighbor.personValues[bodySkill] = sim.bodySkill;
    neighbor.age = ageOf(sim.kind);
    neighbor.skinTone = toneNumber(sim.tone);
    neighbor.wordA = family.number;
    neighbor.kind = sim.gender;
    neighbor.neighborId = sim.fileNumber;
    neighbor.guid = castGuid(neighborhoodIndex, sim);
    for (const CastSim& other : family.members) {
        if (other.fileNumber == sim.fileNumber) continue;
        neighbor.relationships.push_back({static_cast<std::uint32_t>(other.fileNumber), {75, 1}});
    }
    return neighbor;
}

// One of the game's own characters, which are in the same list as the players' Sims. Its id is above theirs.
SampleNeighbor ownCharacter(const std::string& recordName, std::int32_t neighborId, bool hasPersonData) {
    constexpr std::uint32_t ownGuids = 0x11220000;
    SampleNeighbor neighbor;
    neighbor.recordName = recordName;
    neighbor.version = hasPersonData ? baseVersion : 0;
    neighbor.hasPersonData = hasPersonData;
    neighbor.neighborId = neighborId;
    neighbor.guid = ownGuids + static_cast<std::uint32_t>(neighborId);
    return neighbor;
}

SampleFamily castFamily(int neighborhoodIndex, const CastFamily& family) {
    SampleFamily file;
    file.number = family.number;
    file.name = family.name;
    file.funds = family.funds;
    file.house = family.name == "Default" ? 0 : family.number;
    file.members.clear();
    for (const CastSim& sim : family.members) {
        file.members.push_back(castGuid(neighborhoodIndex, sim));
    }
    return file;
}

// In a real neighborhood, friends take most of the list of neighbors.
void addFriends(SampleNeighborhood& neighborhood, int friendsOfEach) {
    constexpr std::int32_t ownCharacters = 2;
    const auto count = static_cast<std::int32_t>(neighborhood.neighbors.size()) - ownCharacters;
    for (SampleNeighbor& neighbor : neighborhood.neighbors) {
        for (int i = 1; i <= friendsOfEach; ++i) {
            const auto other = static_cast<std::uint32_t>((neighbor.neighborId + i) % count + 1);
            neighbor.relationships.push_back({other, {i % 100, 0}});
        }
    }
}

BehaviorSet behaviorOf(const CastFamily& family, const CastSim& sim) {
    if (sim.kind == SampleKind::pet) return BehaviorSet::pet;
    if (family.name == "Default") return BehaviorSet::townie;
    return isFromBaseGame(sim) ? BehaviorSet::older : BehaviorSet::newer;
}

SampleCharacter castCharacter(int neighborhoodIndex, const CastFamily& family, const CastSim& sim) {
    SampleCharacter character;
    character.recordName = castRecordName(sim);
    character.name = sim.name;
    character.biography = "One of the " + family.name + " household. Likes the tide table and a slow breakfast.";
    character.guid = castGuid(neighborhoodIndex, sim);
    character.tag = isChild(sim.kind) ? "child" : "adult";
    if (sim.kind == SampleKind::stranger) character.tag = "elder";
    character.slots = bodySlots(sim);
    if (!sim.headSkin.empty()) setHead(character.slots, sim.headMesh + ",HEAD-HEAD", sim.headSkin);
    character.ending = bodyEnding(sim);
    character.behavior = behaviorOf(family, sim);
    character.map = sim.fileNumber % 3 != 0;
    character.freeRoom = sim.fileNumber % 4 == 1;
    character.colors = portraitColors(sim);
    return character;
}

bool writeCharacter(const fs::path& directory, SampleCharacter character, const CastSim& sim, bool growing) {
    if (growing) {
        character.map = true;
        character.fileSize = 50000 + static_cast<std::size_t>(sim.fileNumber * 37 % 320) * 1000;
    }
    std::string fileName = castRecordName(sim) + ".iff";
    fileName.front() = 'U';
    return writeFile(directory / fileName, makeCharacterFile(character).bytes);
}

// The lists of later editions. Every fifth Sim is of the mode that only some are, and no word of the person data is
// empty.
void makeLater(SampleNeighborhood& neighborhood) {
    constexpr std::int32_t usualMode = 9;
    constexpr std::int32_t rareMode = 5;
    constexpr std::int32_t familyVersion = 9;
    constexpr std::int32_t playedAndHoused = 17;
    for (SampleNeighbor& neighbor : neighborhood.neighbors) {
        neighbor.later = true;
        if (neighbor.hasPersonData) neighbor.version = neighbor.neighborId % 5 == 0 ? rareMode : usualMode;
        neighbor.gapByte = static_cast<std::uint8_t>(neighbor.neighborId);
    }
    for (SampleFamily& family : neighborhood.families) {
        family.version = familyVersion;
        family.hasHistory = family.house != 0;
        if (family.hasHistory) family.flags = playedAndHoused;
    }
}

// Every seventh text ends with a pattern.
void makeLater(SampleCharacter& character, const CastSim& sim) {
    character.ending = BodyEnding::atEntry34;
    if (sim.fileNumber % 7 != 0) character.bodyFill = 0;
    if (isChild(sim.kind)) character.slots[sampleSlot::f100Mesh] = missingOutfit;
    if (sim.kind == SampleKind::adult) character.lastEntry = "h533fafit_01,BODY=h533fafitlgt_01";
    if (sim.kind == SampleKind::pet) character.lastEntry = "NONE";
}

SampleNeighborhood castNeighborhoodFile(int neighborhoodIndex, const CastNeighborhood& neighborhood) {
    SampleNeighborhood file;
    file.freeRoom = neighborhood.freeRoom;
    file.map = neighborhood.map;
    file.neighbors.push_back(ownCharacter("robot", 901, true));
    for (const CastFamily& family : neighborhood.families) {
        file.families.push_back(castFamily(neighborhoodIndex, family));
        for (const CastSim& sim : family.members) {
            if (sim.kind == SampleKind::withoutRecord) continue;
            file.neighbors.push_back(castNeighbor(neighborhoodIndex, family, sim));
        }
    }
    file.neighbors.push_back(ownCharacter("npc_clown", 902, false));
    if (neighborhood.later) makeLater(file);
    return file;
}

bool writeNeighborhood(const fs::path& game, int index, const CastNeighborhood& cast, const FileSizes& sizes) {
    const fs::path directory = game / cast.directory;
    const fs::path characters = directory / "Characters";
    fs::create_directories(characters);
    SampleNeighborhood neighborhood = castNeighborhoodFile(index, cast);
    neighborhood.fileSize = sizes.neighborhood;
    addFriends(neighborhood, sizes.friendsOfEach);
    if (!writeFile(directory / "Neighborhood.iff", makeNeighborhoodFile(neighborhood).bytes)) return false;
    for (const CastFamily& family : cast.families) {
        for (const CastSim& sim : family.members) {
            if (isUnreadable(sim.kind)) continue;
            SampleCharacter character = castCharacter(index, family, sim);
            if (cast.later) makeLater(character, sim);
            if (!writeCharacter(characters, character, sim, cast.growingCharacters)) return false;
        }
    }
    return true;
}

bool writeCast(const fs::path& prefix, const std::vector<CastNeighborhood>& cast, const FileSizes& sizes) {
    if (!makeWinePrefix(prefix)) return false;
    int index = 0;
    for (const CastNeighborhood& neighborhood : cast) {
        if (!writeNeighborhood(gameDirectory(prefix), index++, neighborhood, sizes)) return false;
    }
    return true;
}

}  // namespace

bool writeInstallation(const fs::path& prefix, bool withLater) {
    std::vector<CastNeighborhood> cast = sampleCast();
    if (withLater) cast.push_back(laterNeighborhood());
    return writeCast(prefix, cast, {});
}

bool writeLargeInstallation(const fs::path& prefix, int neighborhoods) {
    constexpr FileSizes realSizes = {.neighborhood = 566000, .friendsOfEach = 60};
    return writeCast(prefix, largeCast(neighborhoods), realSizes);
}
