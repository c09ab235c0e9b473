#include "shell/commands.h"

#include <algorithm>
#include <iterator>

#include "lifestage/child_to_teen.h"
#include "lifestage/move_out.h"
#include "lifestage/teen_to_adult.h"
#include "resources/ids.h"
#include "save/save_command.h"
#include "shell/info_dialog.h"
#include "shell/selection.h"
#include "shell/web_pages.h"
#include "ui/controls.h"

namespace {

void childToTeenClicked() {
    childToTeen(selection().currentSim);
}

void teenToAdultClicked() {
    teenToAdult(selection().currentSim);
}

void moveOutClicked() {
    moveOut(selection().currentSim);
}

void saveAndExit() {
    saveAll();
    PostQuitMessage(0);
}

void exitWithoutSaving() {
    PostQuitMessage(0);
}

// The menu and the keys send codes of their own, which don't matter.
constexpr int anyNotification = -1;

struct Command {
    int id;
    int notification;
    void (*run)();
};

constexpr Command commands[] = {
    {controlId::neighborhoodCombo, CBN_SELCHANGE, neighborhoodPicked},
    {controlId::familyCombo, CBN_SELCHANGE, familyPicked},
    {controlId::simCombo, CBN_SELCHANGE, simPicked},
    {controlId::childToTeenButton, BN_CLICKED, childToTeenClicked},
    {controlId::teenToAdultButton, BN_CLICKED, teenToAdultClicked},
    {controlId::moveOutButton, BN_CLICKED, moveOutClicked},
    {IDM_SAVE, anyNotification, saveAll},
    {IDM_SAVE_AND_EXIT, anyNotification, saveAndExit},
    {IDM_EXIT_WITHOUT_SAVING, anyNotification, exitWithoutSaving},
    {IDM_ABOUT, anyNotification, [] { showInfoDialog(IDD_ABOUT); }},
    {IDM_CREDITS, anyNotification, [] { showInfoDialog(IDD_CREDITS); }},
    {IDM_ONLINE_HELP, anyNotification, [] { openWebPage(WebPage::help); }},
    {IDM_QUESTIONS, anyNotification, [] { openWebPage(WebPage::questions); }},
    {IDM_DONATE, anyNotification, [] { openWebPage(WebPage::donation); }},
};

}  // namespace

bool runCommand(int id, int notification) {
    const auto* const command = std::ranges::find(commands, id, &Command::id);
    if (command == std::end(commands)) return false;
    if (command->notification == anyNotification || command->notification == notification) command->run();
    return true;
}
