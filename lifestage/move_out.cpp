#include "lifestage/move_out.h"

#include <memory>
#include <utility>

#include "platform/win32.h"
#include "ui/controls.h"
#include "ui/cursors.h"
#include "ui/window_parts.h"
#include "world/neighborhoods.h"

namespace {

// Amounts are compared as unsigned numbers, so a family in debt counts as rich.
constexpr std::uint32_t leastFunds = 10'000;
constexpr std::uint32_t highestShare = 20'000;

// Returns the share that the Sim takes along. The family keeps the rest.
std::uint32_t splitFunds(Family& family) {
    const auto funds = static_cast<std::uint32_t>(family.funds());
    const std::uint32_t share = funds > highestShare ? highestShare : funds;
    family.setFunds(static_cast<std::int32_t>(funds - share));
    return share;
}

}  // namespace

std::int32_t moveOut(Sim* sim) {
    showWaitCursor();
    if (sim == nullptr || sim->stage() < stageNumber::adult) return -1;
    Family* family = sim->family();
    // A Sim still names the family that it has moved out of, which matters if another family lists it too.
    if (family == nullptr || !family->hasMember(*sim)) return -1;
    if (static_cast<std::uint32_t>(family->funds()) < leastFunds) {
        // Without an owner on purpose, unlike the questions: a window of its own, which still blocks the main window.
        MessageBoxA(
            nullptr,
            "Your newly independent sim will need some starting funds!  The family must save up at least 10,000 before "
            "a member can move out.",
            "Insufficient funds", MB_OK);
        return -1;
    }
    if (sim->neighborhood().newFamilyCount() >= Neighborhood::highestNewFamilyCount) return -1;

    const std::uint32_t share = splitFunds(*family);
    sim->splitToNewFamily(family->name(), share);
    disableButton(controls().moveOutButton);
    refillNeighborhoodCombo();
    showArrowCursor();
    return 1;
}

void refillNeighborhoodCombo() {
    emptyCombo(controls().neighborhoodCombo);
    emptyCombo(controls().familyCombo);
    emptyCombo(controls().simCombo);
    addNeighborhoodEntries(listedNeighborhoodCount());
}

// The Sim itself doesn't change: it still names its old family, and neither its record nor its file is rewritten.
void Sim::splitToNewFamily(const char* familyName, std::uint32_t funds) {
    auto newFamily = std::make_unique<Family>(*neighborhood_);
    newFamily->setFunds(static_cast<std::int32_t>(funds));
    newFamily->setName(familyName);
    family_->removeMember(*this);
    newFamily->addMember(*this);
    neighborhood_->addNewFamily(std::move(newFamily));
}
