// Who lives in the sample installation: a table of its neighborhoods, families and Sims, from which the files are made.
#ifndef SAMPLE_CAST_H
#define SAMPLE_CAST_H

#include <cstdint>
#include <string>
#include <vector>

// Every kind of family member that the program treats differently.
enum class SampleKind {
    adult,
    teen,              // with age 18
    teenOfAdultAge,    // with age 27, a teen only by its body
    child,             // can become a teen
    childOfStrayHead,  // can become a teen, but no skin set lists its head
    childOfOldMeshes,  // can't become a teen yet: its body strings end with entry 29
    pet,               // with age 27
    stranger,          // with age 27, but its body strings begin with neither "adult" nor "child"
    withoutFile,       // unreadable: it has a neighbor record but no file
    withoutRecord,     // unreadable: only its family lists it
};

// Whether the Sim has no character file.
bool isUnreadable(SampleKind kind);

struct CastSim {
    int fileNumber = 0;     // 42 for "User00042.iff"; 1 to 820, unique in its neighborhood
    std::string name = {};  // Windows-1252
    SampleKind kind = SampleKind::adult;
    int gender = 0;  // 0 male, 1 female, 2 to 5 pet
    std::string tone = "lgt";
    std::string headMesh = {};  // without ",HEAD-HEAD"; if empty, the Sim has the default head of its kind
    std::string headSkin = {};
    int bodySkill = 0;
};

struct CastFamily {
    int number = 0;
    std::string name = {};  // Windows-1252
    int funds = 0;
    std::vector<CastSim> members = {};
};

struct CastNeighborhood {
    std::string directory = {};  // "UserData", "UserData2" and so on
    bool freeRoom = false;       // its file has an "XXXX" chunk
    bool map = false;            // its file has a resource map
    std::vector<CastFamily> families = {};
    bool growingCharacters = false;  // its character files take 55,000 to 370,000 bytes, and each has a map
    bool later = false;              // its files are those of later editions of the game
};

// The three neighborhoods of the sample installation. One family is named "Default": the game keeps Sims without a home
// in it, and the program doesn't list it.
const std::vector<CastNeighborhood>& sampleCast();

// The neighborhood of later editions that can be the fourth.
CastNeighborhood laterNeighborhood();

// Neighborhoods of a real size: 28 families and 216 Sims in each. The second one is as full as the program can show:
// 100 families, most of 8 members, and 820 Sims. Every tenth family and all members of the first have names of 99
// characters.
std::vector<CastNeighborhood> largeCast(int neighborhoods);

// The record name, for example "user00042".
std::string castRecordName(const CastSim& sim);

// The GUID of a Sim of the neighborhood with this index. None of its bytes is zero.
std::uint32_t castGuid(int neighborhoodIndex, const CastSim& sim);

#endif
