#include "lifestage/teen_to_adult.h"

#include <memory>

#include "lifestage/head_question.h"
#include "lifestage/random_generator.h"
#include "lifestage/stage_body.h"
#include "ui/controls.h"
#include "ui/cursors.h"
#include "world/family.h"

namespace {

constexpr int drawsOfALevel = 3276;
constexpr int skillOfALevel = 100;

}  // namespace

std::int16_t adultBodyType(int draw, std::int16_t bodySkill) {
    if (draw / drawsOfALevel <= bodySkill / skillOfALevel) return bodyType::fit;
    return draw % 2 == 1 ? bodyType::fat : bodyType::skinny;
}

std::int32_t teenToAdult(Sim* sim) {
    showWaitCursor();
    if (sim == nullptr || sim->stage() != stageNumber::teen) return -1;
    const BodyStrings* oldBody = sim->bodyStrings();
    if (oldBody == nullptr) return -1;

    const std::int16_t type = adultBodyType(randomGenerator().draw(), sim->bodySkill());
    auto newBody = std::make_unique<BodyStrings>(sim->gender(), grownBody, sim->skinTone(), sim->version(), type);
    if (!chooseHead(
            *sim, stageNumber::adult, oldBody->headSkin(),
            "No adult head is registered for this teen head.  If you proceed, your adult will have a random head "
            "assigned by the game.  Proceed?",
            *newBody)) {
        return 0;
    }

    sim->setStage(stageNumber::adult, std::move(newBody));
    if (Family* family = sim->family()) family->setAdultCount(static_cast<std::int16_t>(family->adultCount() + 1));
    disableButton(controls().teenToAdultButton);
    enableButton(controls().moveOutButton);
    showArrowCursor();
    return 1;
}
