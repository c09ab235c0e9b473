#include "sample/cast.h"

#include <array>

namespace {

using enum SampleKind;

constexpr int male = 0;
constexpr int female = 1;

CastNeighborhood firstNeighborhood() {
    return {"UserData",
            true,
            true,
            {
                {1, "Default", 0, {{1, "Nimbus", adult, male}}},
                {2,
                 "Thistlewood",
                 62500,
                 {{11, "Hazel", adult, female, "lgt", "c001fa_mercedes", "C001FAlgt_Shannon01", 500},
                  {12, "Rowan", adult, male, "lgt", "c009ma_beard", "c009malgt_beard01", 0},
                  {13, "Bramble", teen, female, "lgt", "c008fa_peg", "c008falgt_alt", 1000},
                  {42, "Clover", child, female, "lgt", "c001fc_amanda", "c001fclgt_amanda01", 500},
                  {15, "Fern", childOfStrayHead, female, "lgt", "c990fc_sprout", "c990fclgt_sprout"},
                  {16, "Moss", childOfOldMeshes, male, "lgt", "c806mc_jr", "c806mclgt_jr"},
                  {17, "Biscuit", pet, 2},
                  {18, "Marmalade", pet, 5}}},
                {3,
                 "Q&A",
                 24000,
                 {{21, "Quill", adult, male, "drk", "c007ma_gpa1", "c007madrk_gpa1", 500},
                  {22, "Antonia", adult, female, "drk", "c008fa_peg", "c008fadrk_peg", 0}}},
                {4,
                 "Cr\xE8me",
                 10000,
                 {{23, "Zo\xEB", adult, female, "med", "c005fa_clove", "c005famed_clove01", 0},
                  {24, "Se\xF1or", adult, male, "med", "c017ma_slob", "c017mamed_slob", 0}}},
                {5,
                 "Pennyfarthing",
                 850,
                 {{25, "Pip", adult, male, "drk", "c012ma_buzz", "C012MAdrk_stache", 0},
                  {26, "Tuppence", adult, female, "drk", "c006fa_deb", "c006fadrk_deb", 0},
                  {27, "Farley", teen, male, "drk", "c016ma_lnge", "c016madrk_lnge", 500}}},
                {6, "Larkspur", 18000, {{28, "Juniper", adult, female}}},
            }};
}

CastNeighborhood secondNeighborhood() {
    return {"UserData2",
            false,
            true,
            {
                {1,
                 "Featherstonehaugh-Wetherby",
                 120000,
                 {{1, "Augustina", adult, female, "lgt", "c004fa_gma1", "c004falgt_asian", 0},
                  {2, "Peregrine", adult, male, "lgt", "c002ma_baldfat", "c002malgt_gpa2", 0},
                  {3, "Ottoline", adult, female, "lgt", "c029fa_lynn", "c029falgt_lynn", 1000},
                  {4, "Barnaby", teen, male, "lgt", "c013ma_pompa", "C013MAlgt_pompa", 0},
                  {5, "Dot", child, female, "lgt", "c004fc_fan", "c004fclgt_asian"},
                  {6, "Dash", child, male, "lgt", "c001mc_ave", "c001mclgt_ave"},
                  {7, "Colonel Whiskers", pet, 4}}},
                {2,
                 "Oats",
                 31999,
                 {{8, "Millie", adult, female, "med", "c013fa_trash", "C013FAmed_trash", 500},
                  {9, "Barley", teenOfAdultAge, male, "med", "c019ma_haljor", "c019mamed_haljor", 500},
                  {10, "Rye", child, male, "med", "c012mc_buzz", "c012mcmed_buzz"},
                  {11, "Porridge", pet, 3}}},
                {3,
                 "Moth",
                 9999,
                 {{12, "Luna", adult, female},
                  {13, "Atlas", adult, male, "lgt", "c014ma_hippy", "c014malgt_hippy", 0},
                  {14, "Vesper", withoutRecord, female}}},
                {4,
                 "Tumbledown",
                 50000,
                 {{15, "Mabel", adult, female, "drk", "c001fa_mercedes", "c001fadrk_sharon", 0},
                  {16, "Clement", adult, male, "drk", "c018ma_long", "c018madrk_long", 1000},
                  {17, "Ivy", child, female, "drk", "c203fc_creepymindy", "c203fcdrk_creepymindy"},
                  {18, "Rubble", childOfOldMeshes, male, "drk", "c004mc_nerd", "c004mcdrk_nerd"},
                  {19, "Wisp", stranger, female},
                  {20, "Gravel", pet, 2}}},
            }};
}

CastNeighborhood thirdNeighborhood() {
    return {"UserData3",
            false,
            false,
            {
                {1,
                 "Marsh",
                 12345,
                 {{1, "Reed", adult, male, "med", "c003ma_romancrew", "c003mamed_dad01", 0},
                  {2, "Willow", adult, female, "med", "c010fa_hippy", "C010FAmed_hippy", 0},
                  {3, "Heron", teen, male, "med", "c008ma_asian", "c008mamed_asian", 1000},
                  {4, "Minnow", childOfStrayHead, male, "med", "c991mc_puddle", "c991mcmed_puddle"},
                  {5, "Newt", child, female, "med", "c008fc_pony", "c008fcmed_pony"}}},
                {2, "Inkwell", 20001, {{6, "Nib", teen, female, "med", "c005fa_clove", "c005famed_clove01", 500}}},
                {3, "Pollywog", 20000, {{7, "Otter", adult, male}, {8, "Shade", withoutFile, female}}},
            }};
}

// The Sim with this file number in a large neighborhood. An eighth of them are teens, a quarter are children.
CastSim largeSim(int number) {
    constexpr int skillStep = 50;
    constexpr int skillEnd = 1050;  // skills go up to 1000
    constexpr std::array<const char*, 12> firsts = {"Al", "Be", "Co", "Da", "El", "Fi",
                                                    "Go", "Hu", "Ir", "Jo", "Ka", "Lu"};
    constexpr std::array<const char*, 18> lasts = {"bert",  "dric", "fred", "gar",  "hild", "kin", "la",  "mund", "na",
                                                   "nella", "ric",  "rin",  "ster", "thea", "vin", "wen", "win",  "zo"};
    const auto index = static_cast<std::size_t>(number - 1);
    CastSim sim;
    sim.fileNumber = number;
    sim.name = std::string(firsts[index / lasts.size() % firsts.size()]) + lasts[index % lasts.size()];
    sim.kind = number % 8 == 3 ? teen : number % 4 == 2 ? child : adult;
    sim.gender = number % 2;
    sim.bodySkill = number * skillStep % skillEnd;
    return sim;
}

CastNeighborhood largeNeighborhood(int familyCount, int simCount) {
    CastNeighborhood neighborhood = {.freeRoom = true, .map = true};
    for (int number = 1; number <= familyCount; ++number) {
        neighborhood.families.push_back({number, "Household " + std::to_string(number), 5000 * number});
    }
    for (int number = 1; number <= simCount; ++number) {
        const auto family = static_cast<std::size_t>((number - 1) % familyCount);
        neighborhood.families[family].members.push_back(largeSim(number));
    }
    return neighborhood;
}

CastNeighborhood realNeighborhood() {
    constexpr int families = 28;
    constexpr int sims = 216;
    CastNeighborhood neighborhood = largeNeighborhood(families, sims);
    neighborhood.growingCharacters = true;
    return neighborhood;
}

std::string longestName(std::string name) {
    constexpr std::size_t longest = 99;
    while (name.size() < longest) {
        name += "-\xC5ngstr\xF6m-\x8Atrudl-Cr\xE8me";
    }
    name.resize(longest);
    return name;
}

// A family has 8 members at most, so some Sims are left when 100 families are full. They are in families that aren't
// listed.
CastNeighborhood fullNeighborhood() {
    constexpr int listedFamilies = 100;
    constexpr int families = 103;
    constexpr int sims = 820;
    CastNeighborhood neighborhood = largeNeighborhood(families, sims);
    for (CastFamily& family : neighborhood.families) {
        if (family.number > listedFamilies) {
            family.name = "Default";
        } else if (family.number % 10 == 1) {
            family.name = longestName("\xC9toile " + std::to_string(family.number));
        }
    }
    for (CastSim& sim : neighborhood.families.front().members) {
        sim.name = longestName(sim.name);
    }
    return neighborhood;
}

}  // namespace

bool isUnreadable(SampleKind kind) {
    return kind == withoutFile || kind == withoutRecord;
}

const std::vector<CastNeighborhood>& sampleCast() {
    static const std::vector<CastNeighborhood> cast = {firstNeighborhood(), secondNeighborhood(), thirdNeighborhood()};
    return cast;
}

CastNeighborhood laterNeighborhood() {
    return {"UserData4",
            true,
            true,
            {
                {1, "Default", 0, {{1, "Gale", adult, female}}},
                {2,
                 "Saltmarsh",
                 48000,
                 {{2, "Samphire", adult, female, "lgt", "c001fa_mercedes", "C001FAlgt_Shannon01", 500},
                  {3, "Sandy", adult, male, "lgt", "c009ma_beard", "c009malgt_beard01", 1000},
                  {4, "Shelly", child, female, "lgt", "c001fc_amanda", "c001fclgt_amanda01"},
                  {5, "Rip", child, male, "lgt", "c806mc_jr", "c806mclgt_jr"},
                  {6, "Kelp", teen, female, "lgt", "c008fa_peg", "c008falgt_alt", 1000},
                  {7, "Periwinkle", pet, 2}}},
                {3,
                 "Driftwood",
                 9000,
                 {{8, "Dune", teen, male, "drk", "c016ma_lnge", "c016madrk_lnge", 500},
                  {9, "Pebble", childOfStrayHead, female, "lgt", "c990fc_sprout", "c990fclgt_sprout"},
                  {10, "Flotsam", withoutFile, male}}},
            },
            false,
            true};
}

std::vector<CastNeighborhood> largeCast(int neighborhoods) {
    std::vector<CastNeighborhood> cast;
    for (int number = 1; number <= neighborhoods; ++number) {
        cast.push_back(number == 2 ? fullNeighborhood() : realNeighborhood());
        cast.back().directory = number == 1 ? "UserData" : "UserData" + std::to_string(number);
    }
    return cast;
}

std::string castRecordName(const CastSim& sim) {
    const std::string digits = std::to_string(sim.fileNumber);
    return "user" + std::string(5 - digits.size(), '0') + digits;
}

std::uint32_t castGuid(int neighborhoodIndex, const CastSim& sim) {
    constexpr std::uint32_t common = 0x54570000;
    constexpr std::uint32_t byteValues = 255;  // without zero
    const auto neighborhood = static_cast<std::uint32_t>(neighborhoodIndex % 100 + 0x11);
    const auto number = static_cast<std::uint32_t>(sim.fileNumber);
    return common + (number / byteValues << 16 | neighborhood << 8 | (number % byteValues + 1));
}
