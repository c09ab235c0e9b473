#include "lifestage/child_to_teen.h"

#include <cstdio>
#include <memory>
#include <utility>

#include "lifestage/head_question.h"
#include "lifestage/teen_body.h"
#include "platform/win32.h"
#include "ui/controls.h"
#include "ui/cursors.h"

namespace {

// The text with the outfits of the later expansions.
constexpr std::int16_t requiredVersion = 7;

void refuse(std::int16_t meshVersion, std::int16_t simVersion) {
    char text[320];
    std::snprintf(
        text, sizeof text,
        "This child is not completely converted! Mesh version %d; sim neighborhood version %d; Marrowfen version "
        "%d.  Please play the family some more before using Marrowfen.  No teenification will be performed.",
        meshVersion, simVersion, requiredVersion);
    MessageBoxA(controls().mainWindow, text, "Error", MB_OK);
}

}  // namespace

std::int32_t childToTeen(Sim* sim) {
    showWaitCursor();
    if (sim == nullptr || sim->stage() != stageNumber::child) return -1;
    const BodyStrings* oldBody = sim->bodyStrings();
    if (oldBody == nullptr) return -1;
    const std::int16_t meshVersion = oldBody->version();
    if (meshVersion != sim->version() || meshVersion < requiredVersion) {
        refuse(meshVersion, sim->version());
        return -1;
    }
    auto newBody = std::make_unique<BodyStrings>(teenBody(sim->gender(), sim->skinTone(), meshVersion));
    if (!chooseHead(
            *sim, stageNumber::teen, oldBody->headSkin(),
            "No teen head is registered for this child head.  If you proceed, your teen will have a random head "
            "assigned by the game.  Proceed?",
            *newBody)) {
        return 0;
    }

    sim->setStage(stageNumber::teen, std::move(newBody));
    disableButton(controls().childToTeenButton);
    enableButton(controls().teenToAdultButton);
    showArrowCursor();
    return 1;
}
