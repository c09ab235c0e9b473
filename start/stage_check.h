// The stage of a Sim by its record and by its character file. A save writes both, and a save that was cut off only one.
#ifndef START_STAGE_CHECK_H
#define START_STAGE_CHECK_H

#include <string>

#include "start/character_look.h"
#include "world/sim.h"

// One of the numbers of world/sim.h, as the editor shows it.
std::int32_t stageOf(const Sim& sim, const CharacterLook& look);

// "a teenager"; empty for pets and for stages that can't be told.
std::string stageWord(std::int32_t stage);

// Whether the file has the body of the record's age, as after a complete save.
bool bodyFitsRecord(const Sim& sim, const CharacterLook& look);

#endif
