// The main window and its six controls: their handles, which everybody may use, and the few things done to them from
// more than one place.
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

// All null before the main window has been created.
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

// Both write the button's whole style anew.
void enableButton(HWND button);
void disableButton(HWND button);
void disableStageButtons();

// `text` needs a terminator behind it.
void addEntry(HWND combo, const char* text);

// Takes away the first entry as often as there are entries.
void emptyCombo(HWND combo);

// Adds "Neighborhood 1" to "Neighborhood `count`" to the neighborhood combo box, so that an entry's index is its slot.
void addNeighborhoodEntries(int count);

#endif
