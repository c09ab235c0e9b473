// The window "Go Back".
#ifndef RESTORE_GOING_BACK_WINDOW_H
#define RESTORE_GOING_BACK_WINDOW_H

#include "platform/win32.h"
#include "restore/actions.h"

// Its title. The title "Tidewright" is the editor's alone.
constexpr const char* goingBackTitle = "Go Back - Tidewright";

// Shows the window until it is closed. False if it can't be opened.
bool showGoingBackWindow(const PointsOfGame& game);

// The handles of the window that shows; null otherwise.
struct GoingBackControls {
    HWND window = nullptr;
    HWND pointList = nullptr;
    HWND neighborhoodList = nullptr;
    HWND goBackButton = nullptr;
    HWND makeButton = nullptr;
    HWND deleteButton = nullptr;
};
GoingBackControls goingBackControls();

#endif
