// What the main window draws by itself.
#ifndef SHELL_WINDOW_TEXTS_H
#define SHELL_WINDOW_TEXTS_H

#include <cstdint>

#include "platform/win32.h"

// The answer to WM_PAINT: the labels of the combo boxes, and the two lines that tell of the picked Sim.
void paintMainWindow(HWND window);

// The word for a stage of life.
const char* stageWord(std::int32_t stage);

#endif
