// The program's name in letters of its own: lines drawn with a broad pen.
#ifndef RESOURCES_DRAW_LETTERS_H
#define RESOURCES_DRAW_LETTERS_H

#include "resources/draw/canvas.h"

// Writes "Tidewright" into the evening sky.
void drawName(Canvas& canvas);

#endif
