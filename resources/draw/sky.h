// What lies behind the water: the evening sky down to the horizon, and the hills on the far shore.
#ifndef RESOURCES_DRAW_SKY_H
#define RESOURCES_DRAW_SKY_H

#include "resources/draw/canvas.h"

// Fills the whole canvas: gradient, glow of the sun, stars, moon and clouds.
void drawSky(Canvas& canvas);

// The far shore, hazier with distance; its foot is the horizon.
void drawHills(Canvas& canvas);

#endif
