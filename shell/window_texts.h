// The texts that the main window draws.
#ifndef SHELL_WINDOW_TEXTS_H
#define SHELL_WINDOW_TEXTS_H

#include <cstdint>

#include "platform/win32.h"

// Handles WM_PAINT: draws the labels of the combo boxes, and two lines about the picked Sim.
void paintMainWindow(HWND window);

// The word for a stage of life.
const char* stageWord(std::int32_t stage);

#endif
