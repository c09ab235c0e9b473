#include "shell/commands.h"

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

bool runComboCommand(int id, int notification) {
    const bool picked = notification == CBN_SELCHANGE;
    switch (id) {
        case controlId::neighborhoodCombo:
            if (picked) neighborhoodPicked();
            return true;
        case controlId::familyCombo:
            if (picked) familyPicked();
            return true;
        case controlId::simCombo:
            if (picked) simPicked();
            return true;
        default:
            return false;
    }
}

bool runButtonCommand(int id, int notification) {
    const bool clicked = notification == BN_CLICKED;
    switch (id) {
        case controlId::childToTeenButton:
            if (clicked) childToTeen(selection().currentSim);
            return true;
        case controlId::teenToAdultButton:
            if (clicked) teenToAdult(selection().currentSim);
            return true;
        case controlId::moveOutButton:
            if (clicked) moveOut(selection().currentSim);
            return true;
        default:
            return false;
    }
}

bool runFileCommand(int id) {
    switch (id) {
        case IDM_SAVE:
            saveAll();
            return true;
        case IDM_SAVE_AND_EXIT:
            saveAll();
            PostQuitMessage(0);
            return true;
        case IDM_EXIT_WITHOUT_SAVING:
            PostQuitMessage(0);
            return true;
        default:
            return false;
    }
}

bool runHelpCommand(int id) {
    switch (id) {
        case IDM_ABOUT:
            showInfoDialog(IDD_ABOUT);
            return true;
        case IDM_CREDITS:
            showInfoDialog(IDD_CREDITS);
            return true;
        case IDM_ONLINE_HELP:
            openWebPage(WebPage::help);
            return true;
        case IDM_QUESTIONS:
            openWebPage(WebPage::questions);
            return true;
        case IDM_DONATE:
            openWebPage(WebPage::donation);
            return true;
        default:
            return false;
    }
}

}  // namespace

bool runCommand(int id, int notification) {
    return runComboCommand(id, notification) || runButtonCommand(id, notification) || runFileCommand(id) ||
           runHelpCommand(id);
}
