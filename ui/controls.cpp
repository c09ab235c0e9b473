#include "ui/controls.h"

#include <cstdio>

#include "ui/window_parts.h"

namespace {

constexpr LONG enabledButton = static_cast<LONG>(WS_CHILD | WS_VISIBLE);
constexpr LONG disabledButton = static_cast<LONG>(WS_CHILD | WS_VISIBLE | WS_DISABLED);

Controls handles{};

}  // namespace

Controls& controls() {
    return handles;
}

void enableButton(HWND button) {
    SetWindowLongA(button, GWL_STYLE, enabledButton);
}

void disableButton(HWND button) {
    if (GetFocus() == button) SetFocus(handles.simCombo);
    SetWindowLongA(button, GWL_STYLE, disabledButton);
}

void disableStageButtons() {
    disableButton(handles.childToTeenButton);
    disableButton(handles.teenToAdultButton);
    disableButton(handles.moveOutButton);
}

void addNeighborhoodEntries(int count) {
    for (int number = 1; number <= count; ++number) {
        char text[sizeof "Neighborhood 2147483647"];
        std::snprintf(text, sizeof text, "Neighborhood %d", number);
        addEntry(handles.neighborhoodCombo, text);
    }
}
