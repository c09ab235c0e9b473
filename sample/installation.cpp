#include "sample/installation.h"

#include <array>
#include <utility>

#include "gamefiles/file_writing.h"

namespace {

namespace fs = std::filesystem;

// 0 leaves a file at its natural size.
struct FileSizes {
    std::size_t neighborhood = 0;
    bool growingCharacters = false;  // character files of 55,000 to 370,000 bytes, each with a map
    int friendsOfEach = 0;
};

bool isChild(SampleKind kind) {
    return kind == SampleKind::child || kind == SampleKind::childOfStrayHead || kind == SampleKind::childOfOldMeshes;
}

// Some grown-ups were last saved before the first expansion pack, and their record and body strings are of that time.
bool fromBaseGame(const CastSim& sim) {
    return sim.kind == SampleKind::adult && sim.fileNumber % 7 == 0;
}

std::int32_t ageWord(SampleKind kind) {
    if (isChild(kind)) return 9;
    return kind == SampleKind::teen ? 18 : 27;
}

std::int32_t toneWord(const std::string& tone) {
    if (tone == "lgt") return 1;
    return tone == "med" ? 3 : 2;
}

BodyEnding bodyEnding(const CastSim& sim) {
    if (sim.kind == SampleKind::childOfOldMeshes || fromBaseGame(sim)) return BodyEnding::atEntry29;
    const bool dressedForWinter = sim.fileNumber % 5 == 0 && !isChild(sim.kind) && sim.kind != SampleKind::pet;
    return dressedForWinter ? BodyEnding::atEntry33 : BodyEnding::atEntry32;
}

BodySlots castSlots(const CastSim& sim) {
    const BodySex sex = sim.kindWord == 1 ? BodySex::female : BodySex::male;
    if (sim.kind == SampleKind::pet) return petSlots();
    if (isChild(sim.kind)) return childSlots(sex, sim.tone);
    const bool teen = sim.kind == SampleKind::teen || sim.kind == SampleKind::teenOfAdultAge;
    return teen ? teenSlots(sex, sim.tone) : adultSlots(sex, sim.tone);
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
    SampleNeighbor neighbor;
    neighbor.recordName = castRecordName(sim);
    neighbor.version = fromBaseGame(sim) ? 5 : 7;
    for (std::size_t i = 2; i < neighbor.personValues.size(); ++i) {
        neighbor.personValues[i] = (sim.fileNumber * 7 + static_cast<std::int32_t>(i) * 13) % 10 * 100;
    }
    neighbor.personValues[15] = sim.bodySkill;
    neighbor.age = ageWord(sim.kind);
    neighbor.skinTone = toneWord(sim.tone);
    neighbor.wordA = family.number;
    neighbor.kind = sim.kindWord;
    neighbor.neighborId = sim.fileNumber;
    neighbor.guid = castGuid(neighborhoodIndex, sim);
    for (const CastSim& other : family.members) {
        if (other.fileNumber == sim.fileNumber) continue;
        neighbor.relationships.push_back({static_cast<std::uint32_t>(other.fileNumber), {75, 1}});
    }
    return neighbor;
}

// The game's own characters, in the same list as the players' Sims.
SampleNeighbor ownCharacter(const std::string& recordName, std::int32_t neighborId, bool hasPersonData) {
    SampleNeighbor neighbor;
    neighbor.recordName = recordName;
    neighbor.version = hasPersonData ? 5 : 0;
    neighbor.hasPersonData = hasPersonData;
    neighbor.neighborId = neighborId;
    neighbor.guid = 0x11220000U + static_cast<std::uint32_t>(neighborId);
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

// A real list of neighbours is large for the friends in it.
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

bool writeCharacter(const fs::path& directory, SampleCharacter character, const CastSim& sim, const FileSizes& sizes) {
    if (sizes.growingCharacters) {
        character.map = true;
        character.fileSize = 50000 + static_cast<std::size_t>(sim.fileNumber * 37 % 320) * 1000;
    }
    std::string fileName = castRecordName(sim) + ".iff";
    fileName.front() = 'U';
    return writeFile(directory / fileName, makeCharacterFile(character).bytes);
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
            if (!writeCharacter(characters, castCharacter(index, family, sim), sim, sizes)) return false;
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

bool writeInstallation(const fs::path& prefix) {
    return writeCast(prefix, sampleCast(), {});
}

bool writeLargeInstallation(const fs::path& prefix, int neighborhoods) {
    constexpr FileSizes realSizes = {.neighborhood = 566000, .growingCharacters = true, .friendsOfEach = 60};
    return writeCast(prefix, largeCast(neighborhoods), realSizes);
}

SampleNeighborhood castNeighborhoodFile(int neighborhoodIndex, const CastNeighborhood& neighborhood) {
    SampleNeighborhood file;
    file.freeRoom = neighborhood.freeRoom;
    file.map = neighborhood.map;
    file.neighbors.push_back(ownCharacter("robot", 301, true));
    for (const CastFamily& family : neighborhood.families) {
        file.families.push_back(castFamily(neighborhoodIndex, family));
        for (const CastSim& sim : family.members) {
            if (sim.kind == SampleKind::withoutRecord) continue;
            file.neighbors.push_back(castNeighbor(neighborhoodIndex, family, sim));
        }
    }
    file.neighbors.push_back(ownCharacter("npc_clown", 302, false));
    return file;
}

SampleCharacter castCharacter(int neighborhoodIndex, const CastFamily& family, const CastSim& sim) {
    SampleCharacter character;
    character.recordName = castRecordName(sim);
    character.name = sim.name;
    character.biography = "One of the " + family.name + " household. Likes the tide table and a slow breakfast.";
    character.guid = castGuid(neighborhoodIndex, sim);
    character.tag = isChild(sim.kind) ? "child" : "adult";
    if (sim.kind == SampleKind::stranger) character.tag = "elder";
    character.slots = castSlots(sim);
    if (!sim.headSkin.empty()) setHead(character.slots, sim.headMesh, sim.headSkin);
    character.ending = bodyEnding(sim);
    character.map = sim.fileNumber % 3 != 0;
    character.freeRoom = sim.fileNumber % 4 == 1;
    character.colors = portraitColors(sim);
    return character;
}
