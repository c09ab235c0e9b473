#include "world/sim.h"

#include <cstring>
#include <utility>

namespace {

constexpr std::uint16_t teenCareer = 4;

bool isTeenBody(const BodyStrings& body) {
    const char* skin = body.slot(bodySlot::bodySkin);
    return std::strstr(skin, "TNR") != nullptr || std::strstr(skin, "tnr") != nullptr;
}

std::int32_t stageOfGrown(std::int16_t gender, const BodyStrings* body) {
    if (gender == genderNumber::pet) return stageNumber::pet;
    if (body == nullptr) return stageNumber::unknown;
    return isTeenBody(*body) ? stageNumber::teen : stageNumber::adult;
}

}  // namespace

const char* Sim::name() {
    loadName();
    return name_.c_str();
}

const Guid& Sim::guid() {
    loadGuid();
    return guid_;
}

BodyStrings* Sim::bodyStrings() {
    loadBodyStrings();
    return bodyStrings_.get();
}

std::int32_t Sim::stage() {
    if (!stageKnown_) deriveStage();
    return stage_;
}

int Sim::deriveStage() {
    loadBodyStrings();
    if (age_ == ageNumber::adult) {
        stage_ = stageOfGrown(gender_, bodyStrings_.get());
    } else if (age_ == ageNumber::teen) {
        stage_ = stageNumber::teen;
    } else if (age_ == ageNumber::child) {
        stage_ = stageNumber::child;
    } else {
        stage_ = stageNumber::unknown;
    }
    stageKnown_ = true;
    return 1;
}

int Sim::setStage(std::int32_t stage, std::unique_ptr<BodyStrings> bodyStrings) {
    using namespace personValue;
    if (stage >= stageNumber::baby && stage <= stageNumber::preteen) return -2;
    if (stage == stageNumber::teen) {
        age_ = ageNumber::teen;
        for (const std::size_t skill : skills) {
            personValues_[skill] = 0;
        }
        personValues_[career] = teenCareer;
    } else if (stage == stageNumber::adult) {
        age_ = ageNumber::adult;
        personValues_[career] = 0;
    } else {
        return -3;
    }
    personValues_[careerLevel] = 0;
    characterTag_ = true;
    if (bodyStrings) bodyStrings_ = std::move(bodyStrings);
    stage_ = stage;
    characterDirty_ = true;
    recordDirty_ = true;
    return 1;
}
