#include "start/stage_check.h"

std::int32_t stageOf(const Sim& sim, const CharacterLook& look) {
    if (sim.age() == ageNumber::child) return stageNumber::child;
    if (sim.age() == ageNumber::teen) return stageNumber::teen;
    if (sim.age() != ageNumber::adult) return stageNumber::unknown;
    if (sim.gender() == genderNumber::pet) return stageNumber::pet;
    if (look.body == Body::unknown) return stageNumber::unknown;
    return look.body == Body::teen ? stageNumber::teen : stageNumber::adult;
}

std::string stageWord(std::int32_t stage) {
    if (stage == stageNumber::child) return "a child";
    if (stage == stageNumber::teen) return "a teenager";
    return stage == stageNumber::adult ? "an adult" : "";
}

bool bodyFitsRecord(const Sim& sim, const CharacterLook& look) {
    if (sim.age() == ageNumber::child) return look.body == Body::child;
    if (sim.age() == ageNumber::teen) return look.body == Body::teen;
    return sim.age() == ageNumber::adult && (look.body == Body::adult || sim.gender() == genderNumber::pet);
}
