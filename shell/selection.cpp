#include "shell/selection.h"

#include "ui/controls.h"
#include "ui/cursors.h"
#include "ui/window_parts.h"

namespace {

int selectedEntry(HWND combo) {
    return static_cast<int>(SendMessageA(combo, CB_GETCURSEL, 0, 0));
}

void forgetSim() {
    selection().currentSim = nullptr;
    selection().simIndex = -1;
}

void listFamilies(const Neighborhood& neighborhood) {
    for (std::int32_t i = 0; i < neighborhood.familyCount(); ++i) {
        addEntry(controls().familyCombo, neighborhood.family(i)->name());
    }
}

// Slow the first time: `memberCount` may read many character files.
void listMembers(Family& family) {
    showWaitCursor();
    const std::int32_t count = family.memberCount();
    for (std::int32_t i = 0; i < count; ++i) {
        Sim* sim = family.member(i);
        addEntry(controls().simCombo, sim != nullptr ? sim->name() : "*Unreadable sim*");
    }
    showArrowCursor();
}

void enableStageButtons(Sim& sim, const Family& family) {
    const std::int32_t stage = sim.stage();
    if (stage == stageNumber::child) enableButton(controls().childToTeenButton);
    if (stage == stageNumber::teen) enableButton(controls().teenToAdultButton);
    if (stage >= stageNumber::adult && family.adultCount() >= 2) enableButton(controls().moveOutButton);
}

}  // namespace

Selection& selection() {
    static Selection current;
    return current;
}

void neighborhoodPicked() {
    Selection& picked = selection();
    emptyCombo(controls().familyCombo);
    emptyCombo(controls().simCombo);
    disableStageButtons();
    picked.neighborhoodIndex = selectedEntry(controls().neighborhoodCombo);
    picked.currentNeighborhood = nullptr;
    if (picked.neighborhoodIndex >= 0 && picked.neighborhoodIndex < listedNeighborhoodCount()) {
        picked.currentNeighborhood = neighborhoods[static_cast<std::size_t>(picked.neighborhoodIndex)].get();
        listFamilies(*picked.currentNeighborhood);
    }
    picked.currentFamily = nullptr;
    picked.familyIndex = -1;
    forgetSim();
}

void familyPicked() {
    Selection& picked = selection();
    emptyCombo(controls().simCombo);
    disableStageButtons();
    picked.familyIndex = selectedEntry(controls().familyCombo);
    picked.currentFamily = nullptr;
    if (picked.familyIndex >= 0 && picked.currentNeighborhood != nullptr) {
        picked.currentFamily = picked.currentNeighborhood->family(picked.familyIndex);
        if (picked.currentFamily != nullptr) listMembers(*picked.currentFamily);
    }
    forgetSim();
}

void simPicked() {
    Selection& picked = selection();
    disableStageButtons();
    picked.simIndex = selectedEntry(controls().simCombo);
    picked.currentSim = picked.currentFamily != nullptr ? picked.currentFamily->member(picked.simIndex) : nullptr;
    if (picked.currentSim != nullptr) enableStageButtons(*picked.currentSim, *picked.currentFamily);
}
