// The sea: a mirror of what stands above it, broken by ripples.
#ifndef RESOURCES_DRAW_WATER_H
#define RESOURCES_DRAW_WATER_H

#include <span>

#include "resources/draw/scene.h"

// Paints `scene` from the horizon down with the mirror image of `distance` and of the foregrounds before it.
void drawWater(Canvas& scene, const Canvas& distance, std::span<const Foreground> foregrounds);

// Lays the part of a foreground that is above its waterline over the scene.
void drawAbove(Canvas& scene, const Foreground& foreground);

#endif
