// The ids of the chunks of a Sim's character file that the other chunks or the program name.
#ifndef GAMEFILES_CHARACTER_IDS_H
#define GAMEFILES_CHARACTER_IDS_H

#include <cstdint>

constexpr std::uint16_t characterSlotsId = 128;  // "SLOT"
constexpr std::uint16_t bodyStringsId = 200;     // "STR#"
constexpr std::uint16_t characterNameId = 2000;  // "CTSS", the name and the biography

// The Sim's own behaviors, "BHAV".
constexpr std::uint16_t mainTreeId = 4096;
constexpr std::uint16_t initTreeId = 4097;
constexpr std::uint16_t loadTreeId = 4098;
constexpr std::uint16_t initTraitsId = 4100;

// What the chunk "GLOB" of a Sim names: the behaviors that all Sims share.
constexpr const char* sharedBehaviorsName = "PersonGlobals";

#endif
