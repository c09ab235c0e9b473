// The house that the picture is about: a gable to the front, a wing to the right, light in the windows.
#ifndef RESOURCES_DRAW_HOUSE_H
#define RESOURCES_DRAW_HOUSE_H

#include "resources/draw/canvas.h"

// Draws the house with its foot somewhat below the ground, which is drawn before it afterwards.
void drawHouse(Canvas& canvas);

#endif
