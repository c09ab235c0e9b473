// Who lives in the sample installation: its neighborhoods, families and Sims as one table, from which the files are
// made and by which tests and guides can name them.
#ifndef SAMPLE_CAST_H
#define SAMPLE_CAST_H

#include <cstdint>
#include <string>
#include <vector>

// The kinds of family members that a user can meet.
enum class SampleKind {
    adult,
    teen,              // stored with age 18
    teenOfAdultAge,    // stored with age 27, a teen by its body
    child,             // can become a teen
    childOfStrayHead,  // can become a teen, but no skin set knows its head
    childOfOldMeshes,  // can't become a teen yet: its body strings end with entry 29
    pet,               // age 27
    stranger,          // age 27, but its body strings open with neither "adult" nor "child"
    withoutFile,       // unreadable: its neighbor record leads to no file
    withoutRecord,     // unreadable: its family's list names it, and nothing else does
};

// What the main window says of the stage of such a Sim; empty for the unreadable.
std::string stageWord(SampleKind kind);

bool isUnreadable(SampleKind kind);

struct CastSim {
    int fileNumber = 0;     // 42 for "User00042.iff"; unique in its neighborhood, 1 to 254
    std::string name = {};  // Windows-1252
    SampleKind kind = SampleKind::adult;
    int kindWord = 0;  // 0 male, 1 female, 2 to 5 pet
    std::string tone = "lgt";
    std::string headMesh = {};  // empty for the usual head of its kind
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
};

// The three neighborhoods of the sample installation. One family is named "Default"; the game keeps it for Sims without
// a home, and the program doesn't list it.
const std::vector<CastNeighborhood>& sampleCast();

// As many neighborhoods of a real size: 28 families with 216 Sims each.
std::vector<CastNeighborhood> largeCast(int neighborhoods);

// "user00042", the name in the neighbor record.
std::string castRecordName(const CastSim& sim);

// The GUID of a Sim of the neighborhood with this index. None of its bytes is zero.
std::uint32_t castGuid(int neighborhoodIndex, const CastSim& sim);

#endif
