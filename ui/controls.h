// The handles of the main window and its six controls, and what more than one place does with them.
#ifndef UI_CONTROLS_H
#define UI_CONTROLS_H

#include "platform/win32.h"

namespace controlId {
constexpr int neighborhoodCombo = 1001;
constexpr int familyCombo = 1002;
constexpr int simCombo = 1003;
constexpr int childToTeenButton = 2001;
constexpr int teenToAdultButton = 2002;
constexpr int moveOutButton = 2010;
}  // namespace controlId

// All handles are null until the main window has been created.
struct Controls {
    HWND mainWindow;
    HWND neighborhoodCombo;
    HWND familyCombo;
    HWND simCombo;
    HWND childToTeenButton;
    HWND teenToAdultButton;
    HWND moveOutButton;
};

Controls& controls();

// These replace the button's whole style. A button that is disabled passes the focus to the Sim combo box. Left
// alone, Windows would leave it where no key does anything, and Qt would pass it to the neighborhood combo box, where
// the next key undoes all picks.
void enableButton(HWND button);
void disableButton(HWND button);
void disableStageButtons();

// Adds "Neighborhood 1" and so on, up to `count`, to the neighborhood combo box. An entry's index is its slot's.
void addNeighborhoodEntries(int count);

#endif
